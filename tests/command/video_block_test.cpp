#include "command/video_block.h"

#include "command/sample_streams.h"
#include "command/track_names.h"
#include "common/test_program.h"

#include <functional>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using Set_Options = std::function<void(JobOptions&)>;

/// The text of one video track with some options set.
static QString Video_Text(const Set_Options& set, const FileInfo& track)
{
    JobOptions options;
    set(options);
    FileInfoList streams = {track};
    Command_Line command;
    Append_Source_Video(command, streams, options, u"My Base"_s);
    return command.Text();
}

TEST(VideoBlock, TheSizeIsPinnedUnlessAFormatIsChosen)
{
    struct Claim
    {
        int Checked, Kind;
        QString Value, Text;
    };

    const Claim claims[] = {
        {0, 1, u"16/9"_s, u" --display-dimensions 1:1920x1080"_s},
        {1, 1, u"16/9"_s, u" --aspect-ratio 1:16/9"_s},
        {1, 2, u"640x480"_s, u" --display-dimensions 1:640x480"_s},
        {1, 0, u"640x480"_s, u""_s},
        {1, 3, u"640x480"_s, u""_s},
    };
    for (const Claim& claim : claims)
        EXPECT_EQ(Video_Text(
                      [&](JobOptions& options) {
                          options.chk_VideoFormatOptions.Value = claim.Checked;
                          options.Video_Format_Kind = static_cast<std::int16_t>(claim.Kind);
                          options.Video_Format_Value = claim.Value;
                      },
                      Stream(u"video"_s, u"1"_s, u"eng"_s)),
                  u" --language 1:eng --default-track 0:yes"_s + claim.Text);
    FileInfo no_size = Stream(u"video"_s, u"0"_s);
    no_size.Width.clear();
    no_size.Height.clear();
    EXPECT_TRUE(Video_Text([](JobOptions&) {}, no_size).endsWith(u" --display-dimensions 0:x"_s));
}

TEST(VideoBlock, AFrameRateNeedsItsKindAndItsValue)
{
    struct Claim
    {
        int Checked, Kind;
        QString Value;
        bool Written;
    };

    const Claim claims[] = {
        {1, 2, u"25fps"_s, true}, {0, 2, u"25fps"_s, false}, {1, 1, u"25fps"_s, false}, {1, 2, {}, false}};
    for (const Claim& claim : claims) {
        const QString text = Video_Text(
            [&](JobOptions& options) {
                options.chk_VideoFrameRate.Value = claim.Checked;
                options.Frame_Rate_Kind = static_cast<std::int16_t>(claim.Kind);
                options.Frame_Rate_Value = claim.Value;
            },
            Stream(u"video"_s, u"0"_s));
        EXPECT_EQ(text.endsWith(u" --default-duration 0:25fps"_s), claim.Written);
        EXPECT_EQ(text.contains(u"--default-duration"_s), claim.Written);
    }
}

TEST(VideoBlock, TheFirstTitleRuleThatAppliesNamesTheTrack)
{
    struct Claim
    {
        int Remove, Custom;
        QString Custom_Text;
        int Set, Selected;
        QString Title, Text;
    };

    const Claim claims[] = {
        {1, 1, u"My Film"_s, 1, 2, {}, u" --track-name 0:"_s},
        {0, 1, {}, 1, 2, {}, u" --track-name \"0:(empty)\""_s},
        {0, 1, u"My Film"_s, 1, 2, {}, u" --track-name \"0:\\\"My Film\\\"\""_s},
        {0, 1, u"Film"_s, 0, 0, {}, u" --track-name 0:\\\"Film\\\""_s},
        {0, 1, u"A\\sB"_s, 0, 0, {}, u" --track-name \"0:\\\"A B\\\"\""_s},
        {0, 0, u"Film"_s, 1, 2, u"Old"_s, u" --track-name  \"0:\\\"My Base\\\"\""_s},
        {0, 0, u"Film"_s, 1, 1, u"Old"_s, u""_s},
        {0, 0, u"Film"_s, 1, 1, {}, u" --track-name \"0:\\\"My Base\\\"\""_s},
        {0, 0, u"Film"_s, 1, 0, {}, u""_s},
        {0, 0, u"Film"_s, 0, 2, {}, u""_s},
    };
    const QString head = u" --language 0:und --default-track 0:yes --display-dimensions 0:1920x1080"_s;
    for (const Claim& claim : claims)
        EXPECT_EQ(Video_Text(
                      [&](JobOptions& options) {
                          options.chk_RemoveVideoTitle.Value = claim.Remove;
                          options.chk_CustomVideoTitle.Value = claim.Custom;
                          options.Custom_Video_Title = claim.Custom_Text;
                          options.chk_SetVideoTitle.Value = claim.Set;
                          options.opt_SetVideoTitle.Selected = claim.Selected;
                      },
                      Stream(u"video"_s, u"0"_s, u"und"_s, claim.Title)),
                  head + claim.Text);
}

TEST(FileTitle, TheFirstRuleThatAppliesWins)
{
    struct Claim
    {
        int Remove, Custom;
        QString Custom_Text;
        int Set, Selected;
        QString Source_Title, Text, Argument;
    };

    const Claim claims[] = {
        {1, 1, u"x"_s, 1, 2, {}, u" --title \"\""_s, u""_s},
        {0, 1, u"My Film"_s, 1, 2, {}, u" --title \"My Film\""_s, u"My Film"_s},
        {0, 1, u"A\\sB"_s, 0, 0, {}, u" --title A\\sB"_s, u"A\\sB"_s},
        {0, 1, {}, 1, 2, {}, u" --title \"(empty)\""_s, u"(empty)"_s},
        {0, 0, u"x"_s, 1, 2, u"Old"_s, u" --title \"\\\"A Base\\\"\""_s, u"\"A Base\""_s},
        {0, 0, u"x"_s, 1, 1, {}, u" --title \"\\\"A Base\\\"\""_s, u"\"A Base\""_s},
        {0, 0, u"x"_s, 1, 1, u"Old"_s, {}, {}},
        {0, 0, u"x"_s, 1, 0, u"Old"_s, u" --title \\\"First\\\""_s, u"\"First\""_s},
        {0, 0, u"x"_s, 0, 2, u"Old"_s, {}, {}},
    };
    for (const Claim& claim : claims) {
        JobOptions options;
        options.chk_RemoveFileTitle.Value = claim.Remove;
        options.chk_CustomFileTitle.Value = claim.Custom;
        options.Custom_File_Title = claim.Custom_Text;
        options.chk_SetFileTitle.Value = claim.Set;
        options.opt_SetFileTitle.Selected = claim.Selected;
        Command_Line command;
        Append_File_Title(command, options, u"A Base"_s, claim.Source_Title, u"First"_s);
        EXPECT_EQ(command.Text(), claim.Text);
        if (!claim.Text.isEmpty()) {
            EXPECT_EQ(command.Arguments().constLast(), claim.Argument);
        }
    }
}
