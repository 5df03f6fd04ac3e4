#pragma once

#include "common/stand_in_tool.h"
#include "support/text.h"

/// A program with its language table and an ffprobe that says the same of every file: German, default, "Handler". It
/// says nothing of a file whose name holds "silent".
struct Companion_Test : testing::Test, Test_Program
{
    Companion_Test()
    {
        Load_Language_Table(Prog.Language_Table, QStringLiteral("scrap"));
        Prog.Tools.FFProbe_Path =
            Write_Stand_In(*this, QStringLiteral("app/ffprobe"),
                           "case \"$*\" in *silent*) exit 1;; esac\n"
                           "echo 'stream|index=0|codec_type=audio|disposition:default=1|disposition:forced=0|"
                           "tag:language=ger|tag:handler_name=Handler'\n");
    }

    /// Writes empty files into the video folder.
    void Write_All(const QStringList& names) const
    {
        for (const QString& name : names)
            (void)Write(QStringLiteral("videos/") + name);
    }

    const QString& Videos() const { return Prog.Options.Path_Videos; }

    /// The names of a list's records, in order; none for a list that isn't in use.
    static QStringList Names_Of(const ExternalTrackList& list)
    {
        QStringList names;
        for (const ExternalTrack& track : list)
            if (track.InUse)
                names += track.FileName;
        return names;
    }

    static QStringList Sorted(QStringList names)
    {
        names.sort();
        return names;
    }
};
