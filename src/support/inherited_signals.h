#pragma once

/// Takes back what a parent may have done to this process's signals: blocked ones would never reach us, and with
/// SIGCHLD ignored no child's end could be learnt. What it ignores otherwise stays ignored. The first thing that main
/// does, ahead of any thread.
void Take_Back_Inherited_Signals();
