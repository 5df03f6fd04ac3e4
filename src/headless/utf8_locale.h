#pragma once

/// Gives the process a UTF-8 locale where the environment names another or none (a cron job, LC_ALL=C): file names are
/// UTF-8 all the same. To be called before anything asks for the locale.
void Use_UTF8_Locale();
