#include "headless/presets_command.h"

#include "headless/bad_usage.h"
#include "headless/batch_report.h"
#include "headless/nearest_name.h"
#include "headless/print.h"
#include "settings/preset_file.h"
#include "settings/preset_names.h"
#include "state/program.h"
#include "support/paths.h"
#include "support/shown_text.h"

#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

bool Print_Presets(const QString& app_folder, bool json, std::FILE* out)
{
    const QStringList names = Preset_Names(app_folder);
    for (const QString& name : names)
        if (json)
            Print_Json(out, {{"event", "preset"},
                             {"name", name.toStdString()},
                             {"path", Preset_Path(app_folder, name).toStdString()}});
        else
            Print_Text(out, Printable(name) + u'\n');
    return !names.isEmpty();
}

Ini_Document Take_Preset_Rows(Program& program, const QString& name)
{
    const QString& folder = program.Settings.App_Folder;
    const QString path = Preset_Path(folder, name);
    if (path.isEmpty() || !(File_Exists(path) || Preset_Names(folder).contains(name)))
        throw Bad_Usage{u"--preset \""_s + name + u"\": there is no such preset (vantorra-batch presets lists all)."_s +
                        Did_You_Mean(name, Preset_Names(folder))};
    Ini_Document preset = Read_Preset(path, program.Person);
    Override_By_Preset(program, preset);
    return preset;
}

void Warn_Of_What_Stays_Off(const Program& program, const Ini_Document& preset, Batch_Report& report)
{
    if (const QStringList off = What_Stays_Off(program, preset); !off.isEmpty())
        report.Warn(u"Preset"_s, u"What the preset turns on stays off, as a folder or a choice is missing for it: "_s +
                                     off.join(u", "_s) + u'.');
}
