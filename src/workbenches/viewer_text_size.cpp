#include "workbenches/viewer_text_size.h"

using namespace Qt::StringLiterals;

void Show_Text_Size(std::int16_t size, Label& label)
{
    label.Caption = u"Current Font Size "_s + QString::number(size);
}

void Increase_Text_Size(std::int16_t& size, Label& label)
{
    if (size < 35)
        ++size;
    Show_Text_Size(size, label);
}

void Decrease_Text_Size(std::int16_t& size, Label& label)
{
    if (size > 4)
        --size;
    Show_Text_Size(size, label);
}

void Reset_Text_Size(std::int16_t& size, std::int16_t main_form_size, Label& label)
{
    size = main_form_size;
    Show_Text_Size(size, label);
}
