#include "forms/unseen_screen.h"

bool Use_Unseen_Screen(QTemporaryFile&)
{
    return true;
}
