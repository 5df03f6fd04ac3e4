#pragma once

#include "support/controls.h"

#include <QString>

struct Program;

/// The two number boxes of the main form. A view lets its toolkit edit the text, hands text and caret to the record,
/// calls the box's Change, and shows what the record then holds. Showing it must not call Change again.

/// Keys that mean something of their own in a number box.
enum class Number_Key
{
    Escape,
    Backspace, ///< told after the text has changed, and after Change
    Enter
};

/// Enables a number box with its panel and paints both active, or the reverse.
void Enable_Number_Box(Panel& panel, Text_Box& box, bool on);

/// The input rule of txt_AudioDelayValue: what stays of box.Text, which the operator has just changed, with box.Caret
/// where it stands now. `last_good` is the text to return to, and takes the new one if that is good.
void Apply_Delay_Rule(Text_Box& box, QString& last_good);
/// The same for txt_SplitVideosValue.
void Apply_Split_Rule(Text_Box& box, QString& last_good);

/// Nothing of these happens before the first activation or while the form closes.
void txt_AudioDelayValue_Change(Program& program);
void txt_AudioDelayValue_Key(Program& program, Number_Key key);
/// The focus has left the box.
void txt_AudioDelayValue_LostFocus(Program& program);

void txt_SplitVideosValue_Change(Program& program);
void txt_SplitVideosValue_Key(Program& program, Number_Key key);
void txt_SplitVideosValue_LostFocus(Program& program);
