#pragma once

#include "state/option_editor_state.h"

#include <QString>
#include <functional>

struct Program;

/// What the editor has applied can be taken back, apply by apply: the option files that were there come back as they
/// were, those that weren't go to the trash.

/// Runs `write`, which writes or trashes the option file at `path`, and notes in `step` what that did. A file whose
/// bytes can't be read is written all the same, and can't be taken back. What `write` throws goes on.
void Write_Noted(const QString& path, Option_Step& step, const std::function<void()>& write);

/// Keeps a step that changed something, and of the older ones as many as can be taken back.
void Keep_Step(Option_Editor& editor, Option_Step step);

/// Takes the last apply back. A file that somebody else has changed since stays as it is, and that is told. What can't
/// be written or trashed stays as it is and can be tried again.
void Undo_Last_Apply(Program& program);
