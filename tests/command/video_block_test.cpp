#include "command/video_block.h"

#include "command/sample_streams.h"
#include "command/track_names.h"
#include "common/test_program.h"

/// The text of one video track with some options set.
static QString Video_Text(const JobOptions& options, const FileInfo& track)
{
    FileInfoList streams = {track};
    Command_Line command;
    Append_Source_Video(command, streams, options, u"A Base"_s);
    return command.Text();
}

TEST(VideoBlock, TheSizeIsPinnedUnlessAFormatIsChosen)
{
    const std::tuple<int, int, QString, QString> claims[] = {
        {0, 1, u"16/9"_s, u" --display-dimensions 1:1920x1080"_s},
        {1, 1, u"16/9"_s, u" --aspect-ratio 1:16/9"_s},
        {1, 2, u"640x480"_s, u" --display-dimensions 1:640x480"_s},
        {1, 0, u"640x480"_s, u""_s},
        {1, 3, u"640x480"_s, u""_s},
    };
    for (const auto& [checked, kind, value, text] : claims) {
        JobOptions options;
        options.chk_VideoFormatOptions.Value = checked;
        options.Video_Format_Kind = static_cast<std::int16_t>(kind);
        options.Video_Format_Value = value;
        EXPECT_EQ(Video_Text(options, Stream(u"video"_s, u"1"_s, u"eng"_s)),
                  u" --language 1:eng --default-track 0:yes"_s + text);
    }
    FileInfo no_size = Stream(u"video"_s, u"0"_s);
    no_size.Width.clear();
    no_size.Height.clear();
    EXPECT_TRUE(Video_Text({}, no_size).endsWith(u" --display-dimensions 0:x"_s));
}

TEST(VideoBlock, AFrameRateNeedsItsKindAndItsValue)
{
    const std::tuple<int, int, QString, bool> claims[] = {
        {1, 2, u"25fps"_s, true}, {0, 2, u"25fps"_s, false}, {1, 1, u"25fps"_s, false}, {1, 2, {}, false}};
    for (const auto& [checked, kind, value, written] : claims) {
        JobOptions options;
        options.chk_VideoFrameRate.Value = checked;
        options.Frame_Rate_Kind = static_cast<std::int16_t>(kind);
        options.Frame_Rate_Value = value;
        const QString text = Video_Text(options, Stream(u"video"_s, u"0"_s));
        EXPECT_EQ(text.endsWith(u" --default-duration 0:25fps"_s), written);
        EXPECT_EQ(text.contains(u"--default-duration"_s), written);
    }
}

TEST(Titles, TheFirstRuleThatAppliesNamesTheTrackAndTheFile)
{
    struct Claim
    {
        int Remove, Custom;
        QString Custom_Text;
        int Set, Selected;
        QString Title, Track, File, File_Argument; ///< the title that is there; what is added to the command
    };

    const QString base = u" --track-name \"0:\\\"A Base\\\"\""_s;
    const QString base_file = u" --title \"\\\"A Base\\\"\""_s;
    const Claim claims[] = {
        {1, 1, u"My Film"_s, 1, 2, {}, u" --track-name 0:"_s, u" --title \"\""_s, u""_s},
        {0, 1, {}, 1, 2, {}, u" --track-name \"0:(empty)\""_s, u" --title \"(empty)\""_s, u"(empty)"_s},
        {0,
         1,
         u"My Film"_s,
         1,
         2,
         {},
         u" --track-name \"0:\\\"My Film\\\"\""_s,
         u" --title \"My Film\""_s,
         u"My Film"_s},
        {0, 1, u"Film"_s, 0, 0, {}, u" --track-name 0:\\\"Film\\\""_s, u" --title Film"_s, u"Film"_s},
        {0, 1, u"A\\sB"_s, 0, 0, {}, u" --track-name \"0:\\\"A B\\\"\""_s, u" --title A\\sB"_s, u"A\\sB"_s},
        {0, 0, u"Film"_s, 1, 2, u"Old"_s, QString(base).insert(13, u' '), base_file, u"\"A Base\""_s},
        {0, 0, u"Film"_s, 1, 1, u"Old"_s, {}, {}, {}},
        {0, 0, u"Film"_s, 1, 1, {}, base, base_file, u"\"A Base\""_s},
        {0, 0, u"Film"_s, 1, 0, {}, {}, u" --title \\\"First\\\""_s, u"\"First\""_s},
        {0, 0, u"Film"_s, 0, 2, u"Old"_s, {}, {}, {}},
    };
    for (const Claim& claim : claims) {
        JobOptions options;
        options.chk_RemoveVideoTitle.Value = options.chk_RemoveFileTitle.Value = claim.Remove;
        options.chk_CustomVideoTitle.Value = options.chk_CustomFileTitle.Value = claim.Custom;
        options.Custom_Video_Title = options.Custom_File_Title = claim.Custom_Text;
        options.chk_SetVideoTitle.Value = options.chk_SetFileTitle.Value = claim.Set;
        options.opt_SetVideoTitle.Selected = options.opt_SetFileTitle.Selected = claim.Selected;
        EXPECT_EQ(Video_Text(options, Stream(u"video"_s, u"0"_s, u"und"_s, claim.Title)),
                  u" --language 0:und --default-track 0:yes --display-dimensions 0:1920x1080"_s + claim.Track);
        Command_Line command;
        Append_File_Title(command, options, u"A Base"_s, claim.Title, u"First"_s);
        EXPECT_EQ(command.Text(), claim.File);
        EXPECT_EQ(command.Arguments().value(1), claim.File_Argument);
    }
}
