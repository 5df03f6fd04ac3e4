#include "run/journal.h"

#include "common/test_program.h"

#include <QFile>

TEST(Journal, AFullFileIsLeftAsItIsAndAllAreRead)
{
    Test_Program test;
    const QString folder = test.Prog.Settings.App_Folder;
    File_Outcome outcome{.Source = u"/v/a.avi"_s, .Status = File_Outcome::Kind::Failed, .Exit = 2};
    Note_Result(test.Prog, outcome, u"old"_s);
    outcome.Source = u"/v/b.avi"_s;
    Note_Result(test.Prog, outcome, u"b"_s);
    const QString first = Journal_Path(folder);
    ASSERT_TRUE(QFile::resize(first, 10'000'000)) << "as if torn, and full";
    outcome.Source = u"/v/a.avi"_s;
    Note_Result(test.Prog, outcome, u"new"_s);

    EXPECT_TRUE(Journal_Path(folder).endsWith(u"-2.jsonl"));
    EXPECT_EQ(QFile(first).size(), 10'000'000);
    const Journal_Results results = Read_Journal(folder);
    EXPECT_EQ(results.value(u"/v/a.avi"_s).Hash, u"new"_s);
    EXPECT_EQ(results.value(u"/v/b.avi"_s).Hash, u"b"_s);
}
