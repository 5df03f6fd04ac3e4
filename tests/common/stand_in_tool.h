#pragma once

#include "common/test_program.h"

/// ThreadSanitizer makes a fork of each vfork: a program that can't be executed looks there like one that ends with 1.
#ifdef __SANITIZE_THREAD__
inline constexpr bool Failed_Starts_Are_Told = false;
#else
inline constexpr bool Failed_Starts_Are_Told = true;
#endif

/// Writes an executable shell script below the test's root and returns its path: a tool that shows a fault which the
/// real one can't be made to show. `body` is what follows the first line. On Windows the script stands as
/// RELATIVE.exe.sh beside RELATIVE.exe, whose path is returned: a program that has Wine's host run it, with Unix paths
/// as arguments.
QString Write_Stand_In(const Test_Program& test, const QString& relative, const QByteArray& body);

/// Puts the real tool of PATH into a folder below the test's root, as a link.
void Put_Tool(const Test_Program& test, const QString& name, const QString& folder);

/// Makes of a stand-in a program that can't be started.
void Spoil(const QString& stand_in);

/// A path as a stand-in's body has it: on Windows that of Wine's host.
QByteArray Path_In_Script(const QString& path);

/// What a stand-in's body calls a real tool by: its path, on Windows its name in the PATH of Wine's host.
QByteArray Tool_In_Script(const QString& name);

/// How many descriptors this process holds; on Windows handles.
int Open_Descriptors();

/// How many children of this process are left, running or ended and never reaped.
int Children_Left();

/// True if the process exists and is no zombie.
bool Is_Running(long process);

/// The same of a number that a stand-in's shell has told ("$$"): Windows' numbers are others.
bool Is_Running_In_Script(long process);
