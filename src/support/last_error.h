#pragma once

/// The system's error behind a failed call of Qt's file classes, which tell only in words of their own.

/// Ahead of the call, so that no older error is taken for its own.
void Forget_Last_Error();

/// Behind the failed call, ahead of anything else: the system's number as Raise_File_Error and System_Words take it; 0
/// if the system had no part in it.
int Last_Error();
