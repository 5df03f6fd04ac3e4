#pragma once

#include "end_to_end/library.h"

#include <ostream>

/// One row of a table of claims: a video of the library, what is done to it, and the tracks that come out as Movie.mkv.
struct Track_Claim
{
    const char* Name; ///< letters and digits, reads as a claim
    QString Video = QStringLiteral("plain.mkv");
    void (*Prepare)(Library_Run&) = [](Library_Run&) {};
    QStringList Tracks;
    void (*Check)(Library_Run&) = [](Library_Run&) {};
};

inline void PrintTo(const Track_Claim& claim, std::ostream* out)
{
    *out << claim.Name;
}

inline std::string Name_Of_Claim(const testing::TestParamInfo<Track_Claim>& info)
{
    return info.param.Name;
}

class Track_Claims : public testing::TestWithParam<Track_Claim>
{};
