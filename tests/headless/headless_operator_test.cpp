#include "common/test_program.h"

#include "headless/batch_options.h"
#include "headless/batch_report.h"
#include "headless/headless_operator.h"
#include "headless/memory_stream.h"

struct Unattended
{
    Memory_Stream Out;
    Memory_Stream Err;
    bool Stop = false;
    std::unique_ptr<Batch_Report> Report = Batch_Report::Make({}, Out.Stream(), Err.Stream());
    Headless_Operator Person{*Report, [this] { return Stop; }};
    Program Prog{Person};

    Unattended()
    {
        Person.Watch_Over(Prog);
        Report->Watch_Over(Prog);
    }
};

TEST(Headless_Operator, MessagesAreLinesAndQuestionsAreCancelled)
{
    Unattended test;
    EXPECT_EQ(test.Person.Show_Message({.Title = u"T."_s, .Text = u"one\r\ntwo"_s}), Message_Answer::Ok);
    EXPECT_EQ(test.Person.Show_Message({.Title = u"Sure?"_s, .Text = {}, .Buttons = Message_Buttons::Ok_Cancel}),
              Message_Answer::Cancel);
    EXPECT_EQ(test.Err.Text(), u"vantorra-batch: T. one two\nvantorra-batch: Sure?\n"_s);
    EXPECT_TRUE(test.Person.Pick_Folder({}, {}).isEmpty());
    EXPECT_TRUE(test.Person.Pick_File({}).isEmpty());
}

TEST(Headless_Operator, AStopIsTheHaltButtonUntilTheRunsEndIsSettled)
{
    for (const Progress_Look look :
         {Progress_Look::Idle, Progress_Look::Running, Progress_Look::Finished, Progress_Look::Interrupted}) {
        Unattended test;
        test.Prog.Form.Progress = look;
        test.Person.Pump_Events();
        EXPECT_FALSE(test.Prog.Run.Halt_Requested);
        test.Stop = true;
        test.Person.Pump_Events();
        const bool counts = look == Progress_Look::Idle || look == Progress_Look::Running;
        EXPECT_EQ(test.Prog.Run.Halt_Requested, counts);
        EXPECT_EQ(test.Prog.Form.btn_Halt.Caption, counts ? u"HALTING"_s : u"HALT"_s);
    }
}

TEST(Headless_Operator, AHaltedRunWaitsForNothing)
{
    Unattended test;
    test.Stop = true;
    test.Prog.Run.Run_In_Progress = true;
    test.Person.Wait_With_Events(3'600'000);
    EXPECT_TRUE(test.Prog.Run.Halt_Requested);
}
