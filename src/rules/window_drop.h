#pragma once

struct Drop_Data;
struct Program;

/// Something was dropped on the window, beside the folders' panels. One folder becomes the videos' path, as if dropped
/// on its panel. Of videos of one folder that folder does, and in a careful batch only they are ticked. A preset's file
/// is loaded. Anything else changes nothing. What there is to say about it is Form.lbl_Notice. While a run goes on,
/// folders can be queued.
void Drop_On_Window(Program& program, const Drop_Data& data);
