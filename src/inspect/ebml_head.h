#pragma once

#include <QString>
#include <cstdint>
#include <optional>

class QIODevice;

/// What the head of a Matroska file says of the whole.
struct Ebml_Head
{
    std::optional<std::uint64_t> Segment_End; ///< offset of the byte behind the Segment; nothing: of unknown size
    std::optional<double> Seconds;            ///< the Duration in its Info; nothing: there is none
};

/// Reads the head of a Matroska or WebM file: a few seeks, a few hundred bytes. Nothing for one that doesn't begin as
/// such, that can't be read, or whose sizes make no sense. No content makes it read much or beyond what is there.
std::optional<Ebml_Head> Read_Ebml_Head(const QString& path);
std::optional<Ebml_Head> Read_Ebml_Head(QIODevice& file);
