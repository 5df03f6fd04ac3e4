#include "run/careful_walk.h"

#include "state/program.h"

Careful_Walk::Careful_Walk(Careful_Run& run, const Run_Folders& folders)
    : Run(run), Prog(run.Prog), Folders(folders), Before(folders.Target)
{}

void Enter(const Careful_Walk& walk)
{
    Program& program = walk.Prog;
    Use_Folders(walk.Folders, program.Options);
    program.Run.Options_In_Force = Options_Text(program);
    program.Run.Sensible_Bases =
        program.Settings.Extensions.Sensible_Names_And_Sizes ? walk.Bases : program.Run.Sensible_Bases;
}
