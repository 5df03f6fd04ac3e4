#pragma once

#include "state/job_options.h"

#include <QString>
#include <vector>

struct Program;

/// One check box with what a click on it does.
struct Click_Rule
{
    QString Name; ///< of the control: "chk_AddAudio"
    Check_Box JobOptions::*Box;
    void (*Rule)(Program&);
};

/// Every check box of JobOptions, in its order: for the forms, and for the clicks of the headless driver.
const std::vector<Click_Rule>& Click_Rules();

/// The row of that name; null if there is none.
const Click_Rule* Find_Click_Rule(const QString& name);

/// The operator's left click: the value flips, then the rule runs. A disabled box isn't clicked: False, and nothing
/// changes.
bool Click(Program& program, const Click_Rule& rule);
