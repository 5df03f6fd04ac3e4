#pragma once

#include <memory>

class QWidget;

/// What the system is told of a run, beside the window itself.
struct Run_Status
{
    bool In_Work = false; ///< a run goes on that writes files
    bool Moving = false;  ///< there is a bar to show: a run or a check goes on
    double Fraction = 0;  ///< of the whole batch, 0 to 1
    bool Failed = false;  ///< some video of this run, or of the last one, failed

    bool operator==(const Run_Status&) const = default;
};

/// Where the system has a place for it: the bar on the window's button in the task bar, red once a video has failed,
/// and the reason for which a shutdown should wait. A failure that nobody saw stays marked until the window is used.
/// On systems without such places nothing is shown.
class System_Status
{
  public:
    explicit System_Status(QWidget& window);
    System_Status(const System_Status&) = delete;
    System_Status& operator=(const System_Status&) = delete;
    ~System_Status();

    /// Costs nothing while nothing has changed.
    void Show(const Run_Status& now);

  private:
    class Shell;
    std::unique_ptr<Shell> shell_;
};
