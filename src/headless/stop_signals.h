#pragma once

/// From here on SIGINT, SIGTERM, SIGQUIT and SIGUSR1 no longer end the process; they are remembered. So are SIGHUP,
/// unless the process was started to survive it, and SIGPIPE: a reader that went away is as good as a halt.
///
/// On Windows these are Ctrl-C, Ctrl-Break, and the end of the console, which gives the process five seconds to end by
/// itself.
void Watch_For_Stop_Signals();

/// One of those signals has come.
bool Stop_Signal_Came();
