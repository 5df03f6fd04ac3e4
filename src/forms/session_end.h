#pragma once

#include <QObject>
#include <memory>

class Slot_Guard;
class Startform;
struct Program;

/// The system takes the program away: a session that ends, and where there are such things a signal that asks the
/// program to go and a display that breaks. Each saves the settings. A run is halted as by the button, and the form
/// closes once it is over.
class Session_End : public QObject
{
    Q_OBJECT

  public:
    Session_End(Program& program, Slot_Guard& guard, Startform& form);
    ~Session_End() override;

  private:
    /// How the platform says it.
    class Watch;

    void Save_Settings();
    void Asked_To_Go();

    Program& program_;
    Slot_Guard& guard_;
    Startform& form_;
    std::unique_ptr<Watch> watch_;
};
