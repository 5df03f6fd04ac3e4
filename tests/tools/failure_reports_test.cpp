#include "tools/failure_reports.h"

#include "common/test_program.h"
#include "support/system_identification.h"

#include <cerrno>

TEST(FailureReports, EachShowsItsBoxAndLogsItsLines)
{
    const std::tuple<int, QString, QString, QStringList> claims[] = {
        {13,
         u"Possible functional error with T{1}."_s,
         u"T{1} failed to return any useful information.\r\n\r\nFurther"_s,
         {u"F"_s,
          u"-- T{1} failed to return any useful information for this file. Further processing of this file is cancelled."_s,
          u"NOTE: This filename may contain unicode characters; ffprobe does not recognize unicode!"_s}},
        {53,
         u"mkvmerge.exe was not found in the Registry!"_s,
         u"Mkvmerge.exe was not found, either"_s,
         {u"-- mkvmerge.exe not found in the Registry or Locally /ini. Processing cannot proceed."_s}},
    };
    for (const auto& [code, title, text_begins, wanted] : claims) {
        Test_Program test;
        test.Prog.Options.Log_Verbosity = 1;
        test.Prog.Settings.Mkvmerge_Path_Ini = u"/ini"_s;
        // A text that looks like a mark of the table stays as it is.
        EXPECT_EQ(Report_Run_Failure(test.Prog, code, u"T{1}"_s, u"F"_s), 0);
        ASSERT_EQ(test.Codes(), QList<int>{code});
        const Message_Box& box = test.Person.Messages.front();
        EXPECT_EQ(box.Title, title);
        EXPECT_TRUE(box.Text.startsWith(text_begins)) << box.Text.toStdString();
        EXPECT_EQ(box.Icon, Message_Icon::Exclamation);
        const QString lines = u"            "_s + wanted.join(u"\n            "_s);
        EXPECT_EQ(test.Results().mid(2).join(u'\n'), lines + u"\n@"_s) << "behind the mark and the head";
    }
}

TEST(FailureReports, OneAndTwoQuoteTheSystem)
{
    const QString words = Format_System_Error(ENOENT);
    ASSERT_TRUE(words.contains(u"file"_s, Qt::CaseInsensitive)) << words.toStdString();
    for (const int code : {1, 2}) {
        Test_Program test;
        test.Prog.Options.Log_Verbosity = 1;
        test.Prog.Run.Process_Result = ENOENT;
        Report_Run_Failure(test.Prog, code);
        const Message_Box& box = test.Person.Messages.at(0);
        EXPECT_EQ(box.Icon, Message_Icon::Stop);
        EXPECT_TRUE(box.Text.contains(u"Error:\r\nmkvmerge.exe "_s + words)) << box.Text.toStdString();
        EXPECT_EQ(test.Prog.Run.Last_Error_Text, words);
    }
}
