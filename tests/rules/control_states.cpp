#include "rules/control_states.h"

#include "rules/click_rules.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

/// The flags that belong to no check box, by their words.
static std::vector<std::pair<QString, bool*>> Flags_Of(Program& program)
{
    JobOptions& options = program.Options;
    Main_Form& form = program.Form;
    return {{u"FileChoice"_s, &options.opt_SetFileTitle.Enabled},
            {u"VideoChoice"_s, &options.opt_SetVideoTitle.Enabled},
            {u"ChapsFormat"_s, &options.lbl_ChapsFormat.Enabled},
            {u"AudioDiagram"_s, &form.Audio_Diagram_On},
            {u"SubsDiagram"_s, &form.Subs_Diagram_On},
            {u"DelayToggle"_s, &form.Delay_Toggle},
            {u"DelayPanel"_s, &form.pic_AudioDelayValue.Enabled},
            {u"DelayBox"_s, &form.txt_AudioDelayValue.Enabled},
            {u"DelayActive"_s, &form.txt_AudioDelayValue.Active},
            {u"SplitPanel"_s, &form.pic_SplitVideosValue.Enabled},
            {u"SplitBox"_s, &form.txt_SplitVideosValue.Enabled},
            {u"SplitActive"_s, &form.txt_SplitVideosValue.Active},
            {u"AudioPanel"_s, &form.pic_AudioPath.Visible},
            {u"SubsPanel"_s, &form.pic_SubsPath.Visible},
            {u"ChaptersPanel"_s, &form.pic_ChaptersPath.Visible},
            {u"AttachmentsOn"_s, &options.Add_Attachments_On},
            {u"DeleteAfter"_s, &options.Delete_Video_After},
            {u"Subfolders"_s, &options.Use_Attachment_Subfolders}};
}

Control_States States_Of(const Program& program)
{
    Control_States states;
    for (const Click_Rule& rule : Click_Rules()) {
        const Check_Box& box = program.Options.*rule.Box;
        states[rule.Name.mid(4) + u"="_s] = box.Value;
        states[rule.Name.mid(4)] = box.Enabled;
    }
    // The flags are only read here; one list serves both ways.
    for (const auto& [word, flag] : Flags_Of(const_cast<Program&>(program)))
        states[word] = *flag;
    states[u"AudioMode="_s] = program.Options.AudioFilterMode;
    states[u"SubsMode="_s] = program.Options.SubsFilterMode;
    states[u"SubsKeep="_s] = program.Options.SubsFilterKeep;
    return states;
}

Control_States With_States(Control_States states, const QString& words)
{
    for (const QString& word : words.split(u' ', Qt::SkipEmptyParts)) {
        const qsizetype equals = word.indexOf(u'=');
        const QString key = equals > 0 ? word.left(equals + 1) : word.chopped(1);
        EXPECT_TRUE(states.contains(key)) << "no such control: " << word.toStdString();
        states[key] = equals > 0 ? word.mid(equals + 1).toInt() : word.endsWith(u'+');
    }
    return states;
}

void Put_States(Program& program, const QString& words)
{
    const Control_States states = With_States(States_Of(program), words);
    for (const Click_Rule& rule : Click_Rules()) {
        (program.Options.*rule.Box).Value = states.at(rule.Name.mid(4) + u"="_s);
        (program.Options.*rule.Box).Enabled = states.at(rule.Name.mid(4)) != 0;
    }
    for (const auto& [word, flag] : Flags_Of(program))
        *flag = states.at(word) != 0;
    program.Options.SubsFilterKeep = static_cast<std::int16_t>(states.at(u"SubsKeep="_s));
}

QString Difference(const Control_States& expected, const Control_States& actual)
{
    QString text;
    for (const auto& [word, value] : expected)
        if (actual.at(word) != value)
            text += word + u" should be "_s + QString::number(value) + u", is "_s + QString::number(actual.at(word)) +
                    u"; "_s;
    return text;
}
