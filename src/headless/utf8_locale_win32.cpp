#include "headless/utf8_locale.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <initializer_list>
#include <io.h>
#include <windows.h>

/// How the console was: it is the shell's, too.
static UINT former_code_page = 0;
static DWORD former_mode = 0;

static HANDLE Error_Console()
{
    return GetStdHandle(STD_ERROR_HANDLE);
}

static void Give_Console_Back()
{
    if (former_code_page != 0)
        SetConsoleOutputCP(former_code_page);
    if (former_mode != 0)
        SetConsoleMode(Error_Console(), former_mode);
}

void Use_UTF8_Locale()
{
    for (std::FILE* const stream : {stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
    former_code_page = GetConsoleOutputCP();
    if (former_code_page != 0)
        SetConsoleOutputCP(CP_UTF8);
    if (GetConsoleMode(Error_Console(), &former_mode) == FALSE ||
        SetConsoleMode(Error_Console(), former_mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) == FALSE)
        former_mode = 0;
    std::atexit(Give_Console_Back);
}
