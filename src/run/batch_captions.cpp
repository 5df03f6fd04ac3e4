#include "run/batch_captions.h"

using namespace Qt::StringLiterals;

void Show_Files_Found(Main_Form& form, const QString& headline, int files)
{
    form.pic_VideosPath.Caption =
        headline + QString::number(files) + (files < 2 ? u" File Found "_s : u" Files Found "_s);
}

void Show_Files_Done(Main_Form& form, const QString& headline, int files)
{
    form.pic_TargetPath.Caption =
        headline + QString::number(files) + (files < 2 ? u" File Done "_s : u" Files Done "_s);
}

void Show_Nothing_Done_Yet(Main_Form& form, const QString& headline)
{
    form.pic_TargetPath.Caption = headline + u"0 Files Done "_s;
}
