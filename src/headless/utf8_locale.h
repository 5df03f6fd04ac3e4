#pragma once

/// Gives the process a UTF-8 locale where the environment names another or none (a cron job, LC_ALL=C): file names are
/// UTF-8 all the same. To be called before anything asks for the locale.
///
/// On Windows it is the console that takes UTF-8 from here to the end of the process, and sequences that draw over a
/// line, if it knows them; what is written comes out byte for byte.
void Use_UTF8_Locale();
