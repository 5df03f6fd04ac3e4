#include "inspect/output_check.h"

#include "common/media.h"
#include "inspect/ebml_head.h"
#include "inspect/identified_check.h"
#include "support/files.h"

#include <QBuffer>
#include <QFile>
#include <QProcess>

/// A command as a run makes it: the source with these options ahead of it, and more inputs.
static Command_Line Command(const QString& output, const QString& source, const QString& options = {},
                            const QStringList& added = {})
{
    Command_Line command;
    command.Add_Option(u" --ui-language "_s, u"en_US"_s);
    command.Add_Path(u" --output "_s, output);
    command.Add_Options(options);
    command.Add_Input(source);
    for (const QString& path : added)
        command.Add_Input(path);
    return command;
}

/// What the real mkvmerge says when it runs the command.
static QString Mux(const Command_Line& command)
{
    QProcess mkvmerge;
    mkvmerge.start(Tool_In_Path(u"mkvmerge"_s), command.Arguments(), QIODevice::ReadOnly);
    EXPECT_TRUE(mkvmerge.waitForFinished(60000));
    EXPECT_LE(mkvmerge.exitCode(), 1);
    return QString::fromUtf8(mkvmerge.readAllStandardOutput());
}

/// The records of the tracks of the given numbers.
static FileInfoList Streams(const QStringList& numbers)
{
    FileInfoList list(1);
    for (const QString& number : numbers) {
        list.emplace_back();
        list.back().StreamType = u"video"_s;
        list.back().Index = number;
    }
    return list;
}

TEST(Output_Check, AGoodOutputIsGoodAndACutOneIsNone)
{
    Test_Program test;
    Use_Real_Tools(test);
    const QString source = Place(test, Rich_Video(), Possible_Name(u"a' track 9: Using the output module\n.mkv"_s));
    const QString output = test.Path(u"out.mkv"_s);
    const Command_Line command = Command(output, source);
    const QString said = Mux(command);
    const Asked_Output asked = Asked_Of(command, Streams({u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(Tracks_Taken(said, source), (QStringList{u"0"_s, u"1"_s, u"2"_s, u"3"_s}));
    Check_Result result = Check_Output(asked, said, 0, output, 0.5);
    Check_Identified(test.Prog, asked, output, result);
    EXPECT_TRUE(result.Good()) << result.Failure.toStdString() << result.Warnings.join(u'\n').toStdString();
    Asked_Output mixed = asked;
    mixed.Inputs.resize(2);
    for (const double picture : {0.5, 3.5}) {
        mixed.Picture_Seconds = picture;
        Check_Picture(test.Prog, mixed, output, 4, result);
        EXPECT_EQ(result.Good(), picture < 1) << "an added file that is long enough hides no picture that ends early";
    }

    EXPECT_EQ(Check_Output(asked, said, 0, output, 3.5).Warnings.size(), 1) << "ended three seconds early";
    // Options that change the times, and whether such an end is still too early for them.
    FileInfoList streams = Streams({u"0"_s});
    streams[1].FrameRate = u"25/1"_s;
    for (const auto& [options, told] :
         {std::pair(u" --sync 1:700"_s, 1), std::pair(u" --sync 1:-500"_s, 1), std::pair(u" --sync 1:-1500,25/24"_s, 0),
          std::pair(u" --default-duration 0:24000/1001p"_s, 1), std::pair(u" --default-duration 0:50fps"_s, 0),
          std::pair(u" --default-duration 0:40ms"_s, 0)})
        EXPECT_EQ(
            Check_Output(Asked_Of(Command(output, source, options), streams), said, 0, output, 3.5).Warnings.size(),
            told)
            << options.toStdString();
    EXPECT_EQ(Check_Output(asked, said, 1, output, {}).Warnings.size(), 1) << "mkvmerge warned";
    EXPECT_EQ(Check_Output(Asked_Of(command, Streams({u"0"_s, u"7"_s})), said, 0, output, {}).Warnings,
              QStringList(u"mkvmerge didn't take track 7 of \"%1\""_s.arg(File_Name_Of(source))));
    EXPECT_FALSE(Check_Output(asked, u"nothing"_s, 0, output, {}).Failure.isEmpty());
    for (const qint64 size : {QFile(output).size() - 1, QFile(output).size() / 50, qint64{0}}) {
        ASSERT_TRUE(QFile::resize(output, size));
        EXPECT_FALSE(Check_Output(asked, said, 0, output, 0.5).Failure.isEmpty()) << size;
    }
}

TEST(Output_Check, WhatWentInAndDidNotComeOutIsAWarning)
{
    Test_Program test;
    Use_Real_Tools(test);
    const QString output = test.Path(u"out.mkv"_s);
    // The output was made of less than what the command asks for.
    Mux(Command(output, Rich_Video(), u" --no-subtitles --audio-tracks 1"_s));
    const auto warnings_of = [&](const QString& options) {
        Check_Result result;
        Check_Identified(test.Prog, Asked_Of(Command(output, Rich_Video(), options), {}), output, result);
        return result.Warnings;
    };
    EXPECT_EQ(warnings_of(u" --no-subtitles --audio-tracks 1"_s), QStringList());
    EXPECT_EQ(warnings_of(u" --audio-tracks 1"_s), QStringList(u"the output has 0 subtitles tracks instead of 1"_s));
    EXPECT_EQ(warnings_of(u" --no-subtitles"_s), QStringList(u"the output has 1 audio tracks instead of 2"_s));
    // All are asked at once: each answer is taken for the file that it is about.
    for (const auto& [added, called] :
         {std::pair(Rich_Video(), u"the output"_s), std::pair(test.Path(u"gone"_s), u"\"gone\""_s)}) {
        Asked_Output asked = Asked_Of(Command(output, Rich_Video()), {});
        asked.Inputs.emplace_back().Path = added;
        Check_Result unread;
        Check_Identified(test.Prog, asked, test.Write(u"text.mkv"_s, "text"), unread);
        ASSERT_EQ(unread.Warnings.size(), 1);
        EXPECT_TRUE(unread.Warnings[0].startsWith(called + u" could not be compared: mkvmerge"_s));
    }

    Identified_File source{
        .Readable = true, .Container = {}, .Tracks = {}, .Attachments = {u"a.ttf, 9 bytes"_s}, .Chapters = 4};
    Identified_File written;
    written.Tracks.resize(1);
    source.Tracks.resize(1);
    Check_Result result;
    Compare_Identified(Asked_Of(Command(output, u"/v"_s), {}), {source}, written, result);
    EXPECT_EQ(result.Warnings, (QStringList{u"the output misses the attachment a.ttf, 9 bytes"_s,
                                            u"the output has 0 chapters instead of 4"_s}));
    result = {};
    Compare_Identified(Asked_Of(Command(output, u"/v"_s, u" --no-attachments --no-chapters"_s), {}), {source}, written,
                       result);
    EXPECT_TRUE(result.Good());
}

TEST(Output_Check, AllAudioLeftOutIsAWarningUnlessSomeIsAdded)
{
    Companions companions;
    const Asked_Output silent = Asked_Of(Command(u"/o"_s, u"/v"_s, u" --no-audio"_s), {});
    EXPECT_FALSE(Warning_Of_No_Audio(silent, companions).isEmpty());
    EXPECT_TRUE(Warning_Of_No_Audio(Asked_Of(Command(u"/o"_s, u"/v"_s), {}), companions).isEmpty());
    companions.External_Audio.front().InUse = true;
    EXPECT_TRUE(Warning_Of_No_Audio(silent, companions).isEmpty());
}

static std::optional<Ebml_Head> Head_Of(const QByteArray& hexadecimal)
{
    QByteArray bytes = QByteArray::fromHex(hexadecimal);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return Read_Ebml_Head(buffer);
}

TEST(Ebml_Head, HostileHeadsAreNeverReadBeyondTheirEnd)
{
    // An empty header; a Segment of 14 bytes; in it Info: a scale of 1 s, 2.5 of them.
    const QByteArray info = "1549a966 90 2ad7b1 84 3b9aca00 4489 84 40200000";
    const std::optional<Ebml_Head> good = Head_Of("1a45dfa380 18538067 94" + info);
    ASSERT_TRUE(good);
    EXPECT_EQ(good->Segment_End, 10U + 0x14U);
    EXPECT_EQ(good->Seconds, 2.5);
    const std::optional<Ebml_Head> endless = Head_Of("1a45dfa380 18538067 01ffffffffffffff" + info);
    EXPECT_FALSE(endless->Segment_End) << "of unknown size";
    EXPECT_EQ(endless->Seconds, 2.5);
    EXPECT_FALSE(Head_Of("1a45dfa380 18538067 94 1549a966 8b 4489 88 7ff8000000000000")->Seconds);
    for (const char* bytes :
         {"", "1a45dfa3", "1a45dfa3ff", "1a45dfa301fffffffffffffe", "00000000", "504b0304", "1a45dfa380 1549a966 80"})
        EXPECT_FALSE(Head_Of(bytes)) << bytes;
    // Cut anywhere, with any byte spoiled: an answer or none, but no reading beyond (which the sanitizer would see).
    const QByteArray whole = QByteArray::fromHex("1a45dfa380 18538067 94" + info);
    for (qsizetype i = 0; i < whole.size(); ++i)
        for (const char byte : {'\x00', '\x01', '\x08', '\x7f', '\xff'})
            Head_Of((whole.left(i) + byte + whole.mid(i + 1, i % 7)).toHex());
}
