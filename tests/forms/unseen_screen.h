#pragma once

class QTemporaryFile;

/// Ahead of the application: the windows of these tests stand on a screen that nobody sees, large enough for all of
/// them, whose description goes into `description`. On Windows that is the screen which the tests were started on.
bool Use_Unseen_Screen(QTemporaryFile& description);
