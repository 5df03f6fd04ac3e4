#pragma once

#include "headless/batch_options.h"

#include <vector>

struct Program;

/// Throws Bad_Usage for the name of a check box that doesn't exist. Looks at names only, so that a slip of the finger
/// is told before anything is done.
void Check_Box_Names(const std::vector<Box_Click>& clicks);

/// Clicks the boxes in the order given, as the operator would: each value flips and its rule runs. A box that is so
/// already stays as it is. Throws Bad_Usage for one that is disabled.
void Click_Boxes(Program& program, const std::vector<Box_Click>& clicks);
