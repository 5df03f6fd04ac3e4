#pragma once

/// Gives this process a trash of its own: a folder in the temporary folder, for what is behind Names_In_Trash.
void Use_Own_Trash();
