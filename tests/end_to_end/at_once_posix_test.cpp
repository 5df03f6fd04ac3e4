#include "end_to_end/at_once.h"

#include <QFile>

TEST_F(At_Once, TheRoomThatVideosInWorkStillNeedCountsAsTaken)
{
    // The first to get the room waits for the others' failures.
    Put_Ahead_Of_Mkvmerge("for i in $(seq 400); do [ $(cat \"" + Path_In_Script(Path(u"app"_s)) +
                          "/\"*.jsonl | grep -c '\"failed\"') -lt 7 ] || break; sleep 0.05; done");
    Set_Environment(u"LD_PRELOAD"_s, QStringLiteral(VANTORRA_FAULT_SHIM));
    Set_Environment(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
    Set_Environment(u"ROOM"_s, QString::number(QFile(Path(Video(1))).size() * 5 / 4));
    const Batch_Result result = Run_Eight();
    EXPECT_EQ(Ended(result, u"done"_s), 1) << result.Err.toStdString();
    EXPECT_EQ(Ended(result, u"failed"_s), 7);
    EXPECT_EQ(result.Err.count(u"of which the other videos in work need"_s), 7) << result.Err.toStdString();
}
