#include "run/careful_hint.h"

#include "run/journal.h"
#include "state/program.h"
#include "support/paths.h"

using namespace Qt::StringLiterals;

static const QString Hint = QStringLiteral("A careful batch checks each output before it counts "
                                           "and never loses a source: Settings > Extensions > Careful Batch");

static bool Is_To_Be_Told(const Program& program)
{
    return program.Settings.Careful_Key_Missing && !File_Exists(Journal_Path(program.Settings.App_Folder));
}

void Tell_Of_Careful_Batch(Program& program)
{
    if (program.Listener == nullptr || program.Run.Careful_Asked.has_value() || !Is_To_Be_Told(program))
        return;
    program.Listener->Warned(u"A careful batch"_s, u"This run works as ever. "_s + Hint + u", or --careful."_s);
}

void Show_Careful_Batch(Program& program)
{
    if (!Is_To_Be_Told(program))
        return;
    program.Form.ulbl_Title1.Caption = Hint;
    program.Settings.Careful_Key_Missing = false;
}
