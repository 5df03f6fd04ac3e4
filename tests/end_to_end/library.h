#pragma once

#include "common/media.h"

#include <QJsonObject>

/// A library of small media, each made at its first use in a test process: by ffmpeg, or by hand where it can't.
///
/// plain.mkv    a picture and a sound, nothing else
/// langs.mkv    sounds eng [Main] default, ger [English dub], und; subtitles eng, ger [Schilder] forced; a title,
///              chapters Eins 0 s and Zwei 0.5 s, a font
/// cover.mkv    a picture, a sound and cover art
/// film.mp4     23.976 pictures a second, a sound ger, chapters (which make a data stream)
/// old.avi      25 pictures a second, mp3
/// tv.ts        mpeg2video and two sounds, eng and fre
/// titles.mkv   titles with quotes, colons, pipes and a backslash
/// c.mp3 c.ac3 c.flac c.opus c.mka c.ogg, c.srt c.ass c.mks c.sup, and c.idx with c.sub: companions
/// font.ttf pic.png: what can be attached
QString Library_File(const QString& name);

/// The bytes of a file; a test failure if it can't be read.
QByteArray Bytes_Of_File(const QString& path);

/// What a tool prints on standard output; a test failure if it can't be run or ends with anything but 0.
QByteArray Output_Of(const QString& tool, const QStringList& arguments);

/// A program with the real tools, a video of the library in its video folder, and what came out of a run over it.
struct Library_Run : Test_Program
{
    Library_Run();

    /// Copies a file of the library into the video folder.
    void Add(const QString& library_name, const QString& name) const
    {
        Place(*this, Library_File(library_name), QStringLiteral("videos/") + name);
    }

    /// Presses the run button; true if the run came to its end.
    bool Run();

    /// What mkvmerge says of a file in the target folder.
    QJsonObject Output(const QString& name = QStringLiteral("Movie.mkv")) const;
    /// "audio AC-3 eng [Main] default forced" for each track, in order; only what is there.
    QStringList Tracks(const QString& name = QStringLiteral("Movie.mkv")) const;
    /// Properties of one track, by its place.
    QJsonObject Track_Properties(int track) const;
    QString Title() const;
    /// "0.500 Zwei" for each chapter: start in seconds and name.
    QStringList Chapters() const;
    /// "font.ttf font/ttf" for each attachment.
    QStringList Attachments() const;
    QByteArray Attachment_Bytes(int number) const;
    /// The time in milliseconds at which each track's first packet stands.
    QList<int> First_Times() const;
    /// The process log.
    QString Log() const;
};
