#include "support/failure_box.h"

#include "support/text.h"

using namespace Qt::StringLiterals;

Message_Box Failure_Box(const QString& title, const Run_Time_Error& error, const QString& advice)
{
    return {.Title = title,
            .Text = error.Message().replace(u"\n"_s, Line_Break) + Line_Break + advice,
            .Icon = Message_Icon::Exclamation};
}
