#pragma once

#include "common/test_program.h"

/// ThreadSanitizer makes a fork of each vfork: a program that can't be executed looks there like one that ends with 1.
#ifdef __SANITIZE_THREAD__
inline constexpr bool Failed_Starts_Are_Told = false;
#else
inline constexpr bool Failed_Starts_Are_Told = true;
#endif

/// Writes an executable shell script below the test's root and returns its path: a tool that shows a fault which the
/// real one can't be made to show. `body` is what follows the first line.
QString Write_Stand_In(const Test_Program& test, const QString& relative, const QByteArray& body);

/// How many descriptors this process holds.
int Open_Descriptors();

/// How many children of this process are left, running or ended and never reaped.
int Children_Left();

/// True if the process exists and is no zombie.
bool Is_Running(long process);
