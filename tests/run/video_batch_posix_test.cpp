#include "run/video_batch_fixture.h"

#include <QFile>
#include <sys/resource.h>
#include <unistd.h>

TEST_F(VideoBatch, WithoutADescriptorThePipeIsReported)
{
    Test.Write(u"videos/a.mkv"_s, "x");
    rlimit limit = {};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    const auto take_all = [&limit] {
        const int next = ::dup(0);
        ::close(next);
        const rlimit none = {static_cast<rlim_t>(next), limit.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &none);
    };
    for (const bool for_mkvmerge : {true, false}) {
        Test.Person.Messages.clear();
        (for_mkvmerge ? Heard.On_Command : Heard.On_Start) = take_all;
        // ffprobe's failure is one file's, mkvmerge's ends the batch.
        EXPECT_EQ(Run(), !for_mkvmerge);
        ::setrlimit(RLIMIT_NOFILE, &limit);
        EXPECT_EQ(Test.Codes(), QList<int>{for_mkvmerge ? 8 : 11});
    }
}

TEST_F(VideoBatch, ANameThatIsNotUtf8GetsItsReport)
{
    const QByteArray path = QFile::encodeName(Test.Path(u"videos/bad_"_s)) + "\xff.mkv";
    FILE* file = ::fopen(path.constData(), "w");
    ASSERT_NE(file, nullptr);
    ::fputs("x", file);
    ::fclose(file);
    Test.Write(u"videos/good.mkv"_s, "x");
    EXPECT_TRUE(Run());
    EXPECT_EQ(Test.Codes(), QList<int>{13});
    EXPECT_EQ(Names(u"target"_s), QStringList{u"good.mkv"_s});
    ::unlink(path.constData()); // Qt can't
}

TEST_F(VideoBatch, AnOutputThatLeadsToASourceOrOutOfTheTargetIsNotWrittenThrough)
{
    const auto link_to = [this](const QString& file) {
        return [this, file] { return QFile::link(file, Guarded.Output); };
    };
    const auto by_steps = [this] {
        return QFile::link(u"step"_s, Guarded.Output) &&
               QFile::link(u"../elsewhere/old.mkv"_s, Test.Path(u"target/step"_s));
    };
    Expect_Guarded({{"to its source", link_to(Guarded.Source), Guarded.Same},
                    {"to another video", link_to(Guarded.Other), Guarded.Same},
                    {"out", link_to(Guarded.Elsewhere), u"output"_s},
                    {"out by steps", by_steps, u"output"_s},
                    {"to nothing out", link_to(Guarded.Elsewhere + u"2"_s), u"output"_s},
                    {"to itself", link_to(Guarded.Output), u"output"_s},
                    {"within", link_to(Test.Write(u"target/b.mkv"_s)), {}}});
    EXPECT_EQ(Test.Results().filter(Guarded.Same).size(), 2);
    EXPECT_FALSE(QFile::exists(Guarded.Elsewhere + u"2"_s));
}
