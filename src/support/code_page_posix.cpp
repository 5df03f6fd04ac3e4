#include "support/code_page.h"

QString Text_In_Code_Page(QByteArrayView bytes)
{
    return QString::fromLatin1(bytes);
}
