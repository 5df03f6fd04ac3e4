#pragma once

#include <QString>

struct Drop_Data;
struct Program;
struct Queued_Run;

/// Folders that are added while a run goes on.

/// Something was dropped on the window in a run. Asks about the folders among it, in Queue.Asked, and nobody waits for
/// the answer; what can't be taken is told in Form.lbl_Notice.
void Drop_In_Run(Program& program, const Drop_Data& data);

/// The words of the question; empty: nothing is asked.
QString Queue_Question(const Program& program);

/// The answer: with `yes` the folders stand at the end of the queue. One that comes behind the run changes nothing.
void Answer_Queue_Question(Program& program, bool yes);

/// Takes one out again; a place that isn't there changes nothing.
void Remove_Queued(Program& program, int place);

/// "Next: /shelf/Season 2/ (24 videos)".
QString Queued_Caption(const Queued_Run& queued);

/// Makes the next queued folder the videos' folder. One that is gone or holds no video any more is passed over, and
/// told in Videos.Notes. False: there is none left.
bool Take_Next_Queued(Program& program);

/// Nothing more is run: the run was halted, couldn't be started, or came to its end. Videos.Notes tells what was queued
/// still, and what was asked about without an answer.
void Give_Up_Queue(Program& program);
