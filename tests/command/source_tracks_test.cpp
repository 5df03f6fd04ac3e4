#include "command/source_tracks.h"

#include "command/sample_streams.h"
#include "common/test_program.h"

/// Language and title of one track.
struct Track
{
    QString Language, Title;
};

static FileInfoList Streams_Of(const QString& type, const std::vector<Track>& tracks)
{
    FileInfoList streams = {Stream(u"File_Info"_s, {}), Stream(u"video"_s, u"0"_s)};
    for (const Track& track : tracks)
        streams.push_back(Stream(type, QString::number(streams.size() - 1), track.Language, track.Title));
    return streams;
}

static QString Text_Of(const Tracks_Argument& argument)
{
    Command_Line command;
    argument.Append_To(command);
    return command.Text();
}

TEST(SourceTracks, EachFilterModeKeepsItsTracksOfBothKinds)
{
    // "all", "none" or the list
    const std::vector<Track> three = {{u"eng"_s, {}}, {u"ger"_s, {}}, {u"und"_s, {}}};
    const std::vector<Track> titled = {
        {u"ger"_s, u"English dub"_s}, {u"ger"_s, u"Commentary (eng)"_s}, {u"ger"_s, u" 5.1  ENG"_s}};
    const QString german = u"German (ger):French (fre)"_s;
    const std::tuple<int, QString, bool, std::vector<Track>, QString> claims[] = {
        {0, german, false, three, u"all"_s},
        {1, german, false, three, u"none"_s},
        {1, {}, false, {}, u"all"_s},
        {2, {}, false, three, u"1"_s},
        {2, {}, false, {{u"und"_s, {}}}, u"none"_s},
        {2, {}, false, {{u"ENGLISH"_s, {}}, {u"ger"_s, {}}, {u"x eng-US"_s, {}}}, u"1,3"_s},
        {2, {}, false, titled, u"none"_s},
        {2, {}, true, titled, u"1,3"_s},
        {2, {}, true, {{u"ger"_s, u"Greng"_s}}, u"none"_s},
        {3, german, false, three, u"1,3"_s},
        {3, {}, false, three, u"all"_s},
        {3, german, false, {{u"GER"_s, {}}, {u"fre"_s, {}}}, u"1"_s},
        {4, german, false, three, u"2"_s},
        {4, {}, false, three, u"none"_s},
        {4, u"English (eng):German (ger):Undetermined (und)"_s, false, three, u"all"_s},
        {3, u"Undetermined (und)"_s, false, {{u"???"_s, {}}, {u"und"_s, {}}}, u"1"_s},
    };
    for (const auto& [mode, filter, keep_english, tracks, wanted] : claims) {
        JobOptions options;
        options.AudioFilterMode = options.SubsFilterMode = static_cast<std::int16_t>(mode);
        options.AudioFilter.Languages = options.SubsFilter.Languages = filter;
        options.Keep_English_Audio = options.Keep_English_Subs = keep_english;
        FileInfoList audio = Streams_Of(u"audio"_s, tracks);
        FileInfoList subtitles = Streams_Of(u"subtitle"_s, tracks);
        const bool all = wanted == "all"_L1;
        const bool none = wanted == "none"_L1;
        EXPECT_EQ(Text_Of(Select_Source_Audio(audio, options, {})), all    ? u""_s
                                                                    : none ? u" --no-audio"_s
                                                                           : u" --audio-tracks "_s + wanted);
        EXPECT_EQ(Text_Of(Select_Source_Subtitles(subtitles, options, {})), all    ? u""_s
                                                                            : none ? u" --no-subtitles"_s
                                                                                   : u" --subtitle-tracks "_s + wanted);
        const std::size_t kept = all ? tracks.size() : none ? 0U : static_cast<std::size_t>(wanted.count(u',')) + 1U;
        EXPECT_EQ(std::ranges::count(audio, u"audio"_s, &FileInfo::StreamType), kept);
        EXPECT_EQ(audio[1].StreamType, u"video"_s);
        EXPECT_TRUE(Select_Source_Subtitles(audio, options, {}).Option.isEmpty()) << "audio is no subtitle";
    }
}

TEST(SourceTracks, AudioStatesBothFlagsUnlessAnExternalFileIsTheDefault)
{
    // Whether titles are stripped, and the default is claimed; the delay's box, and the delay.
    const std::tuple<FileInfo, bool, bool, int, QString, QString> claims[] = {
        {Stream(u"audio"_s, u"1"_s, u"eng"_s, {}, u"1"_s, u"1"_s), false, false, 0, u"50"_s,
         u"--language|1:eng|--default-track|1:yes|--forced-track|1:yes"_s},
        {Stream(u"audio"_s, u"1"_s, u"???"_s, u"A B"_s, u""_s, u"2"_s), false, false, 1, u"-50"_s,
         u"--language|1:und|--track-name|1:A B|--default-track|1:no|--forced-track|1:no|--sync|1:-50"_s},
        {Stream(u"audio"_s, u"1"_s, u"eng"_s, u"A\\sB"_s), true, true, 2, u"0"_s,
         u"--language|1:eng|--track-name|1:|--sync|1:0"_s},
        {Stream(u"audio"_s, u"1"_s, u"eng --attach-file /etc/passwd"_s, u"A\\sB"_s, u"1"_s),
         false,
         true,
         1,
         {},
         u"--language|1:eng --attach-file /etc/passwd|--track-name|1:A\\sB"_s},
    };
    for (const auto& [track, strip, claimed, delay_box, delay, arguments] : claims) {
        JobOptions options;
        options.chk_AudioDelayAdjust.Value = delay_box;
        options.Audio_Delay = delay;
        FileInfoList streams = {Stream(u"video"_s, u"0"_s), track};
        Command_Line command;
        Append_Source_Audio(command, streams, options, strip, claimed);
        EXPECT_EQ(command.Arguments().join(u'|'), arguments);
    }
}

TEST(SourceTracks, SubtitlesSayOnlyWhatIsKnownUnlessTheBoxesSayItForAll)
{
    const std::tuple<FileInfo, bool, int, QString> claims[] = {
        {Stream(u"subtitle"_s, u"2"_s, u"eng"_s, {}, u"1"_s, u"0"_s), false, 0,
         u" --language 2:eng --default-track 2:yes --forced-track 2:no"_s},
        {Stream(u"subtitle"_s, u"2"_s, u"???"_s, u"A\\sB"_s, u""_s, u"7"_s), false, 0,
         u" --language 2:und --track-name \"2:A B\""_s},
        {Stream(u"subtitle"_s, u"2"_s, u""_s, u"A"_s, u"1"_s, u"1"_s), true, 1,
         u" --track-name 2: --default-track 2:no --forced-track 2:yes"_s},
        {Stream(u"subtitle"_s, u"2"_s, u"eng"_s, {}, u"1"_s, u""_s), false, 2,
         u" --language 2:eng --default-track 2:yes"_s},
    };
    for (const auto& [track, strip, boxes, text] : claims) {
        JobOptions options;
        options.chk_SubDefaults.Value = options.chk_SubForces.Value = boxes;
        options.chk_SubForces.Tag = u"yes"_s;
        FileInfoList streams = {track};
        Command_Line command;
        Append_Source_Subtitles(command, streams, options, strip);
        EXPECT_EQ(command.Text(), text);
    }
}
