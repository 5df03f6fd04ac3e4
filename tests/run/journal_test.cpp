#include "run/journal.h"

#include "common/test_program.h"

#include "run/journal_results.h"

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

TEST(Journal, TheNewestResultCountsWhateverMachineAndZoneItIsFrom)
{
    Test_Program test;
    const auto line = [](const char* host, const char* when, const char* status, const char* hash) {
        return QByteArray(R"({"event":"result","source":"/v/a.avi","host":")") + host + R"(","when":")" + when +
               R"(","status":")" + status + R"(","hash":")" + hash + "\"}\n";
    };

    struct Row
    {
        QByteArray Alpha;
        QByteArray Beta;
        QString Hash;
    };

    const Row rows[] = {
        {line("alpha", "2026-03-01T12:00:00.000Z", "done", "a"),
         line("beta", "2026-03-01T12:59:00.000+01:00", "failed", "b"), u"a"_s},
        {line("alpha", "2026-03-01T12:00:00.000Z", "done", "a"),
         line("beta", "2026-03-01T13:01:00.000+01:00", "failed", "b"), u"b"_s},
        {line("alpha", "2026-03-01T12:00:00.000Z", "done", "a"),
         line("beta", "2026-03-02T12:00:00.000Z", "not run", "b"), u"a"_s},
        {line("alpha", "2026-03-01T12:00:00.000Z", "not run", "a"),
         line("beta", "2026-02-01T12:00:00.000Z", "done", "b"), u"b"_s},
        // A clock that was set back.
        {line("alpha", "2026-03-01T12:00:00.000Z", "failed", "a") +
             line("alpha", "2026-03-01T11:00:00.000Z", "done", "a2"),
         {},
         u"a2"_s},
    };
    for (const Row& row : rows) {
        test.Write(u"app/Vantorra_Journal-alpha.jsonl"_s, row.Alpha);
        test.Write(u"app/Vantorra_Journal-beta-2.jsonl"_s, row.Beta);
        EXPECT_EQ(Read_Journal(test.Prog.Settings.App_Folder).value(u"/v/a.avi"_s).Hash, row.Hash)
            << row.Beta.constData();
    }
}

TEST(Journal, AYoungerKeyCountsAmongTheOptionsOnlyWhereItIsOn)
{
    Test_Program test;
    EXPECT_FALSE(Options_Text(test.Prog).contains(u"Language From File Name"));
    test.Prog.Settings.Extensions.Language_From_File_Name = true;
    EXPECT_TRUE(Options_Text(test.Prog).contains(u"Language From File Name=On"));
}
