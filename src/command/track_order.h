#pragma once

#include "state/media_state.h"

#include <QString>
#include <QStringList>
#include <cstdint>

/// The pieces of --track-order. An entry is input number, ":", track number; the source is input 0 and its tracks are
/// numbered by ffprobe's index. Entries of the source end in a comma, those of external files begin with one.
struct Track_Order
{
    QString Video;
    QString Default_Audio; ///< the external track that takes the default: behind the video, ahead of the source's audio
    QString Source_Audio;
    QString Extra_Audio;
    QString Source_Subtitles;
    QString Extra_Subtitles;
    std::int16_t Next_File_Index = 1; ///< input number of the next external file

    /// All pieces in the order above.
    QString Text() const;
};

/// The entries of the source's tracks of one kind ("video", "audio", "subtitle"), in list order.
QString Source_Entries(const FileInfoList& streams, const QString& stream_type);

/// The pieces joined by commas, runs of up to four commas made one, and one comma cut off the end. One at the start
/// stays.
QString Join_Order(const QStringList& pieces);
