#pragma once

#include <QObject>

class QSocketNotifier;
class Slot_Guard;
class Startform;
struct Program;

/// The desktop takes the program away: a session that ends, a signal that asks the program to go, a display that
/// breaks. Each saves the settings. A signal during a run is the halt button, and the form closes once the run is over.
class Session_End : public QObject
{
    Q_OBJECT

  public:
    Session_End(Program& program, Slot_Guard& guard, Startform& form);
    ~Session_End() override;

  private:
    void Asked_To_Go();

    Program& program_;
    Slot_Guard& guard_;
    Startform& form_;
    QSocketNotifier* asked_ = nullptr;
};
