#include "support/text.h"
#include "workbenches/option_editor.h"
#include "workbenches/viewer_text_size.h"

using namespace Qt::StringLiterals;

/// What belongs to each box: its place in a record and in the sticky values, its control's name.
struct Slot_Fields
{
    QString OptionRecord::*Record;
    std::int16_t StickyValues::*Sticky_Flag;
    QString StickyValues::*Sticky_Text;
    bool No_Or_Yes; ///< the box takes only these two words
    const char16_t* Control;
};

static constexpr std::array<Slot_Fields, Option_Slot_Count> Fields{{
    {&OptionRecord::Title, &StickyValues::Sticky_Titles, &StickyValues::Title, false, u"txt_Title"},
    {&OptionRecord::Language, &StickyValues::Sticky_Languages, &StickyValues::Language, false, u"cmbo_Language"},
    {&OptionRecord::Default, &StickyValues::Sticky_Default, &StickyValues::Default, true, u"cmbo_Default"},
    {&OptionRecord::Forced, &StickyValues::Sticky_Forced, &StickyValues::Forced, true, u"cmbo_Forced"},
    {&OptionRecord::Delay, &StickyValues::Sticky_Delay, &StickyValues::Delay, false, u"txt_Delay"},
}};

static const Slot_Fields& Fields_Of(Option_Slot slot)
{
    return Fields[slot];
}

static bool Is_No_Or_Yes(const QString& text)
{
    const QString lowered = text.toLower();
    return lowered == u"no"_s || lowered == u"yes"_s;
}

QString Text_For_Slot(Option_Slot slot, const QString& text)
{
    return Fields_Of(slot).No_Or_Yes && !Is_No_Or_Yes(text) ? QString() : On_One_Line(text);
}

void Blank_Boxes(Option_Editor& editor)
{
    for (Option_Box& box : editor.Boxes) {
        box.Typed = false;
        if (box.Sticky) {
            box.Set = box.Set || !box.Text.isEmpty();
        } else {
            box.Text.clear();
            box.Set = false;
        }
    }
}

void Show_Option_Record(Option_Editor& editor)
{
    Blank_Boxes(editor);
    if (editor.Current_Options.Flags < 1)
        return;
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot) {
        Option_Box& box = editor.Boxes[slot];
        const QString& text = editor.Current_Options.*Fields[slot].Record;
        if (box.Sticky || text.isEmpty() || (Fields[slot].No_Or_Yes && !Is_No_Or_Yes(text)))
            continue;
        box.Text = Fields[slot].No_Or_Yes ? text.toLower() : text;
        box.Set = true;
    }
}

void Read_Boxes(Option_Editor& editor)
{
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot)
        if (editor.Boxes[slot].Set)
            editor.Current_Options.*Fields[slot].Record = editor.Boxes[slot].Text;
    editor.Current_Options.Comments.clear();
}

void Option_Box_Change(Option_Editor& editor, Option_Slot slot, const QString& text)
{
    Option_Box& box = editor.At(slot);
    box.Text = Text_For_Slot(slot, text);
    box.Set = true;
    box.Typed = true;
}

void Option_Box_Leave(Option_Editor& editor, Option_Slot slot)
{
    Option_Box& box = editor.At(slot);
    const bool left_unset = Fields_Of(slot).No_Or_Yes ? !Is_No_Or_Yes(box.Text) : box.Text.isEmpty();
    // The language box has no such rule: emptied by the operator it stays set.
    if (slot != Language_Slot && left_unset)
        box.Set = false;
}

QString Next_Box(Option_Slot slot)
{
    const std::size_t next = static_cast<std::size_t>(slot) + 1;
    return next < Option_Slot_Count ? QString::fromUtf16(Fields[next].Control) : QString();
}

QString Grey_Box_Note(const Option_Editor& editor)
{
    return editor.Selected_Count == 0 ? QString() : editor.Selected_Count == 1 ? u"(not set)"_s : u"(left as it is)"_s;
}

void OptionsFiles_img_FontInc(Option_Editor& editor)
{
    Increase_Text_Size(editor.Font_Size, editor.lbl_FontSize);
}

void OptionsFiles_img_FontDec(Option_Editor& editor)
{
    Decrease_Text_Size(editor.Font_Size, editor.lbl_FontSize);
}

void OptionsFiles_img_FontReset(Option_Editor& editor, std::int16_t main_form_size)
{
    Reset_Text_Size(editor.Font_Size, main_form_size, editor.lbl_FontSize);
}

void Load_The_Boxes(Option_Editor& editor)
{
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot) {
        Option_Box& box = editor.Boxes[slot];
        box.Sticky = editor.Sticky.*Fields[slot].Sticky_Flag == 1;
        box.Text = box.Sticky ? editor.Sticky.*Fields[slot].Sticky_Text : QString();
        box.Set = box.Sticky;
        box.Typed = false;
    }
}

void Save_The_Boxes(Option_Editor& editor)
{
    for (std::size_t slot = 0; slot < Option_Slot_Count; ++slot) {
        Option_Box& box = editor.Boxes[slot];
        if (Trim_Blanks(box.Text).isEmpty())
            box.Sticky = false;
        editor.Sticky.*Fields[slot].Sticky_Flag = box.Sticky ? 1 : 0;
        editor.Sticky.*Fields[slot].Sticky_Text = box.Sticky ? box.Text : QString();
    }
}
