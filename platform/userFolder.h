// Where a user's own settings of this program go.

#pragma once

#include <filesystem>

// A folder of the user's for this program alone; it need not be there yet. On Windows it is the one that goes with the user from
// one machine to the next.
std::filesystem::path userFolder();
