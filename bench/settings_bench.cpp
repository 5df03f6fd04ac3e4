// Reading and writing all settings against the size of the file: the time for each byte should stay the same, so that
// the ratio to a raw copy of the file does too. The rest of the file is what the program doesn't know.

#include "headless_person.h"
