#include "forms/menu_bar.h"

#include "forms/bindings.h"
#include "forms/slot_guard.h"
#include "forms/startform.h"
#include "life/help_and_about.h"
#include "life/menu_commands.h"
#include "life/start_up.h"
#include "rules/folder_changes.h"
#include "rules/option_rules.h"
#include "rules/presets.h"
#include "rules/recent_folders.h"
#include "rules/verbosity.h"
#include "run/list_runs.h"
#include "settings/settings_store.h"
#include "settings/verbosity_levels.h"
#include "state/program.h"
#include "tools/tool_discovery.h"

#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {
/// By the menu, as by the button or by its spot while it is disabled.
void View_Video_File_Info(Program& program)
{
    if (program.Form.btn_ViewVidInfo.Enabled)
        btn_ViewVidInfo_Click(program);
    else
        pic_ViewVidInfo_Click(program);
}

struct Menu_Command
{
    const char* Action;
    void (*Rule)(Program&);
};

/// As the button, while it can be pressed.
void Check_Videos(Program& program)
{
    if (program.Form.btn_Check.Enabled)
        btn_Check_Click(program);
}

/// The items without a tick; those with one stand in Menu_Ticks.
const Menu_Command Commands[] = {
    {"mnu_BrowseVideos", mnu_PopupVideoBrowse1_Click},
    {"mnu_BrowseTarget", mnu_PopupTargetBrowse1_Click},
    {"mnu_BrowseAudio", mnu_PopupAudioBrowse1_Click},
    {"mnu_BrowseSubs", mnu_PopupSubsBrowse1_Click},
    {"mnu_BrowseChapters", mnu_PopupChapsBrowse1_Click},
    {"mnu_RecentSources", img_SourceMRU_Click},
    {"mnu_RecentTargets", img_TargetMRU_Click},
    {"mnu_RunVantorra", mnu_RunVantorra_Click},
    {"mnu_Check", Check_Videos},
    {"mnu_ViewVidInfo", View_Video_File_Info},
    {"mnu_SavePreset", mnu_SavePreset_Click},
    {"mnu_ManagePresets", mnu_ManagePresets_Click},
    {"mnu_SaveNow", mnu_SaveNow_Click},
    {"mnu_Quit", mnu_Quit_Click},
    {"mnu_ViewLog", mnu_ViewLog_Click},
    {"mnu_ClearLog", mnu_ClearLog_Click},
    {"mnu_ExecutablePaths", mnu_ExecutablePaths_Click},
    {"mnu_CustomAudioFilter", mnu_CustomAudioFilter_Click},
    {"mnu_CustomSubtitleFilter", mnu_CustomSubtitleFilter_Click},
    {"mnu_AudioOptionsFile", mnu_AudioOptionsFile_Click},
    {"mnu_SubtitleOptionsFile", mnu_SubtitleOptionsFile_Click},
    {"mnu_FlipSubDefaults", chk_SubDefaults_Right_Click},
    {"mnu_FlipSubForces", chk_SubForces_Right_Click},
    {"mnu_VideoFrameRate", mnu_VideoFrameRate_Click},
    {"mnu_VideoFormatOptions", mnu_VideoFormatOptions_Click},
    {"mnu_CustomFileTitle", mnu_CustomFileTitle_Click},
    {"mnu_CustomVideoTitle", mnu_CustomVideoTitle_Click},
    {"mnu_Attachments", mnu_Attachments_Click},
    {"mnu_Help", mnu_Help_Click},
    {"mnu_AboutProgram", mnu_AboutProgram_Click},
};
} // namespace

void Connect_Menus(Startform& form, Program& program, Slot_Guard& guard)
{
    const auto connect = [&](const QString& name, void (*rule)(Program&)) {
        // Queued: the menu has closed before a form opens.
        if (auto* action = form.findChild<QAction*>(name))
            QObject::connect(
                action, &QAction::triggered, &form,
                [&, rule] {
                    form.Leave_Boxes(); // a key of the menu takes no focus from them
                    guard.Call([&] { rule(program); });
                },
                Qt::QueuedConnection);
    };
    for (const Menu_Command& command : Commands)
        connect(QLatin1StringView(command.Action), command.Rule);
    for (const auto* items : {&Menu_Ticks(), &Menu_Choices()})
        for (const Menu_Tick& item : *items)
            connect(item.Name, item.Command);

    auto* levels = new QActionGroup(&form);
    for (int level = 0; level < static_cast<int>(Verbosity_Levels().size()); ++level) {
        auto* action = form.findChild<QAction*>(u"mnu_Verbosity"_s + QString::number(level));
        const QString& caption = Verbosity_Levels()[static_cast<std::size_t>(level)].Item_Caption;
        action->setText(With_Letter(caption, caption.front()));
        levels->addAction(action);
        QObject::connect(action, &QAction::triggered, &form,
                         [&, level] { guard.Call([&] { Choose_Verbosity(program, level); }); });
    }
}

void Render_Menus(Startform& form, const Program& program)
{
    // As a whole: a bar with titles that are all off would still take the focus, and Escape with it.
    form.menuBar()->setEnabled(program.Form.fram_WholeForm.Enabled);
    const std::pair<const char*, const Button&> buttons[] = {{"mnu_RunVantorra", program.Form.btn_RunVantorra},
                                                             {"mnu_Check", program.Form.btn_Check}};
    for (const auto& [name, button] : buttons)
        if (auto* action = form.findChild<QAction*>(QLatin1StringView(name)))
            action->setEnabled(button.Enabled);
    for (const auto* items : {&Menu_Ticks(), &Menu_Choices()})
        for (const Menu_Tick& item : *items)
            if (auto* action = form.findChild<QAction*>(item.Name))
                action->setChecked(item.Ticked(program));
    for (const auto& [name, field] : Menu_Bindings())
        if (auto* menu = form.findChild<QMenu*>(QLatin1StringView(name))) {
            const Menu_Item& item = program.Form.*field;
            menu->setTitle(item.Caption);
            menu->menuAction()->setEnabled(item.Enabled);
            menu->menuAction()->setVisible(item.Visible);
        }
    if (auto* level = form.findChild<QAction*>(u"mnu_Verbosity"_s + QString::number(program.Options.Log_Verbosity)))
        level->setChecked(true);
    if (auto* system = form.findChild<QAction*>(u"mnu_OSVersion"_s))
        system->setText(With_Letter(program.Form.mnu_OSVersion.Caption, QChar()));
    const auto flip = [&](const char* name, const QString& what, const Check_Box& box) {
        if (auto* action = form.findChild<QAction*>(QLatin1StringView(name)))
            action->setText(u"Set Subtitles "_s + what + (box.Tag == u"yes" ? u" to \"no\""_s : u" to \"yes\""_s));
    };
    flip("mnu_FlipSubDefaults", u"&defaults"_s, program.Options.chk_SubDefaults);
    flip("mnu_FlipSubForces", u"&forces"_s, program.Options.chk_SubForces);
}
