#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>

/// What the fuzz targets share. A target is a file NAME_fuzz.cpp: it takes bytes from libFuzzer and says, by Claim,
/// what has to hold for them beyond not crashing. A Run_Time_Error is how the program refuses a text; any other
/// exception ends the target as a finding.

/// Ends the process as a finding if the claim doesn't hold; `claim` and `about` are printed.
void Claim(bool holds, const char* claim, const QString& about = {});

/// libFuzzer's bytes as the text that a reader gets.
QString Text_Of(const std::uint8_t* bytes, std::size_t size);

/// A file of that name in a folder of this process, which goes with it.
QString Work_File(const QString& name);
void Write_Work_File(const QString& path, const std::uint8_t* bytes, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
