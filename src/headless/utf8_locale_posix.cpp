#include "headless/utf8_locale.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>

void Use_UTF8_Locale()
{
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        setenv("LC_ALL", "C.UTF-8", 1);
    std::setlocale(LC_CTYPE, "C");
}
