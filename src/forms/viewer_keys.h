#pragma once

class QKeyEvent;

/// The code by which the viewers' rules know a key; 0 for a key that they have no rule for.
int Viewer_Key(const QKeyEvent& event);
