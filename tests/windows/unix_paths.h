#pragma once

#include <string>
#include <vector>

/// A path that was among the arguments, in both forms, as UTF-8.
struct Path_Pair
{
    std::string Unix, Windows;
};

/// UTF-16 as UTF-8.
std::string Utf8(const std::wstring& text);

/// The path of the system below of one with a drive; empty if there is none.
std::string Unix_Path(const std::wstring& path);

/// What the shell gets of the tool's arguments: those with a drive, or with "file:" or a
/// number and ":" ahead of it, are paths, unless they are a title. `pairs` gets what Put_Back needs.
std::vector<std::string> Unix_Arguments(const std::vector<std::wstring>& arguments, std::vector<Path_Pair>& pairs);

/// The text with each Unix path of `pairs`, which stand in the order in which they are tried, in Windows' form. What
/// may be the beginning of one is left in `text` unless it is the last of all.
std::string Put_Back(std::string& text, const std::vector<Path_Pair>& pairs, bool last);
