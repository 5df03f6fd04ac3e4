#include "inspect/identification.h"

#include "common/stand_in_tool.h"
#include "inspect/identification_json.h"

#include <QProcess>

namespace {

TEST(Identification, CodecPrivateValuesAreMaskedAndEscapesUndoneInThatOrder)
{
    const std::tuple<const char*, QString, QString> cases[] = {
        {"a further item stays", u"Track [codec_private_data:0a\\s0b language:eng]"_s,
         u"Track [ codec_private_data:XX language:eng]"_s},
        {"both marks", u"T [a:1 codec_private_length:4 codec_private_data:00 b:2]"_s,
         u"T [a:1  codec_private_length:XX  codec_private_data:XX b:2]"_s},
        {"any case", u"T Codec_Private_Data:00 b"_s, u"T  codec_private_data:XX b"_s},
        {"one hit a pass", u"codec_private_data:1 codec_private_data:2 x"_s,
         u" codec_private_data:XX codec_private_data:2 x"_s},
        {"no blank behind it: the whole line again", u"[codec_private_data:00]"_s,
         u"[ codec_private_data:XX [codec_private_data:00]"_s},
        {"escapes", u"title:a\\sb\\cc\\\\s"_s, u"title:a b:c\\ "_s},
        {"escapes are case-sensitive", u"\\S\\C"_s, u"\\S\\C"_s},
    };
    for (const auto& [what, line, shown] : cases) {
        EXPECT_EQ(Identification_Lines(line, false), QStringList{shown}) << what;
        EXPECT_EQ(Identification_Lines(line, true), QStringList{line}) << what;
    }
}

TEST(Identification_Json, IsWrittenOutAsVerboseText)
{
    const QString head = u"File '/v/a b.mkv': container: Matroska"_s;
    const char* const known = R"("container":{"recognized":true,"supported":true,"type":"Matroska"})";
    const auto with = [known](const char* more) { return std::string("{") + known + "," + more + "}"; };
    const std::string track = with(R"("tracks":[{"codec":"AVC/H.264","id":0,"type":"video","properties":{
        "uid":18446744073709551615,"enabled_track":true,"forced_track":false,"none":null,"gamma":0.125,
        "track_name":"a: b\r\n\\c\nd","multi plexed:x":[1,2],
        "programs":[{"program_number":1,"service_name":"S 1"},{"program_number":2}]}}])");
    const std::string attachments = with(R"("attachments":[
        {"content_type":"font/ttf","description":"","file_name":"a'b.ttf","id":1,"size":6,"properties":{"uid":7}},
        {"content_type":"image/png","description":"two\nlines","file_name":"c.png","id":2,"size":0,"properties":{}}])");
    const std::string counts = with(R"("chapters":[{"num_entries":1},{"num_entries":12}],
        "global_tags":[{"num_entries":3}],"track_tags":[{"num_entries":1,"track_id":4}])");
    const std::string nested(100000, '[');
    const std::string deep = with(
        ("\"tracks\":[{\"id\":0,\"properties\":{\"a\":" + nested + std::string(nested.size(), ']') + "}}]").c_str());
    const std::tuple<const char*, const char*, QStringList> cases[] = {
        {"messages first, then the content",
         R"({"warnings":["w 1\n","w\n2"],"errors":["e\n"],"container":{"recognized":true,"supported":true,"type":"X"}})",
         {u"Warning: w 1"_s, u"Warning: w 2"_s, u"Error: e"_s, u"File '/v/a b.mkv': container: X"_s}},
        {"a file that can't be opened", R"({"warnings":[],"errors":["no such file\n"]})", {u"Error: no such file"_s}},
        {"an unknown type",
         R"({"container":{"recognized":false,"supported":false},"tracks":[{"id":0}]})",
         {u"Error: The type of file '/v/a b.mkv' is not supported."_s}},
        {"a type that is known and refused",
         R"({"container":{"recognized":true,"supported":false,"type":"Flash Video"},"tracks":[{"id":0}]})",
         {u"File '/v/a b.mkv': unsupported container: Flash Video"_s}},
        {"a track with all kinds of properties",
         track.c_str(),
         {head, u"Track ID 0: video (AVC/H.264) [uid:18446744073709551615 enabled_track:1 forced_track:0 gamma:0.125 "
                u"track_name:a\\c\\sb\\s\\c\\sd multi\\splexed\\cx:1 multi\\splexed\\cx:2 program_number:1 "
                u"service_name:S\\s1 program_number:2]"_s}},
        {"attachments",
         attachments.c_str(),
         {head, u"Attachment ID 1: type 'font/ttf', size 6 bytes, file name 'a'b.ttf' [uid:7]"_s,
          u"Attachment ID 2: type 'image/png', size 0 bytes, description 'two lines', file name 'c.png'"_s}},
        {"counts",
         counts.c_str(),
         {head, u"Chapters: 1 entry"_s, u"Chapters: 12 entries"_s, u"Global tags: 3 entries"_s,
          u"Tags for track ID 4: 1 entry"_s}},
        {"lists in lists without end", deep.c_str(), {head, u"Track ID 0:  ()"_s}},
        {"no JSON at all", "Error: unknown option\r\n", {u"Error: unknown option"_s}},
        {"another program's words ahead",
         "libfoo: {no version}\r\n\r\n{\"container\":{\"type\":\"T\",\"properties\":{\"a\":1}}}",
         {u"Warning: libfoo: {no version}"_s, u"File '/v/a b.mkv': container: T [a:1]"_s}},
        {"cut short",
         "{\"codec_private_data\":\"0142",
         {u"Error: mkvmerge's identification of '/v/a b.mkv' is no whole JSON."_s}},
        {"JSON of another kind", "[1]\r\n", {u"[1]"_s}},
    };
    for (const auto& [what, json, wanted] : cases) {
        QStringList lines = Verbose_Text_Of_Json(QString::fromUtf8(json), u"/v/a b.mkv"_s).split(u"\r\n"_s);
        EXPECT_EQ(lines.takeLast(), QString()) << what;
        EXPECT_EQ(lines, wanted) << what;
    }
}

struct Identify_Test : testing::Test, Test_Program
{};

TEST_F(Identify_Test, TheLocalCopyIsAskedForItsOwnTextWithThePathAsOneArgument)
{
    Prog.Tools.Local_MKVMerge_OK = true;
    Prog.Tools.Local_MKVMerge_Path =
        Write_Stand_In(*this, u"app/mkvmerge"_s, "for argument; do echo \"$argument\"; done\n");
    ASSERT_TRUE(Identify_File(Prog, u"/v/a \"b\" c.mkv"_s));
    EXPECT_EQ(Prog.Media.Video_Info_Lines,
              (QStringList{u"--identification-format"_s, u"verbose-text"_s, u"--identify"_s, u"/v/a \"b\" c.mkv"_s}));
}

TEST_F(Identify_Test, AToolThatCantBeAskedIsReportedAndTheLinesStay)
{
    Prog.Media.Video_Info_Lines = QStringList{u"old"_s};
    Prog.Tools.System_MKVMerge_Path = Write_Stand_In(*this, u"mkvmerge"_s, "");
    EXPECT_FALSE(Identify_File(Prog, u"/f"_s));
    Prog.Tools.System_MKVMerge_Path = Write(u"plain"_s, "x");
    EXPECT_FALSE(Identify_File(Prog, u"/f"_s));
    EXPECT_EQ(Codes(), (QList<int>{3, 2}));
    EXPECT_EQ(Prog.Media.Video_Info_Lines, QStringList{u"old"_s});
}

} // namespace
