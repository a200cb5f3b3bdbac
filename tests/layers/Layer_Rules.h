#pragma once

#include "layers/Source_Tree.h"

// The rules of the house, each as a check over a tree of sources. A check answers with one line for everything that
// breaks its rule, "file:line: what is wrong"; nothing is ever excepted.
using Complaints = std::vector<std::string>;

/// The rooms of src/, from the ground floor up, and what each may include.
struct Room
{
    std::string folder;
    std::vector<std::string> may_include;
    enum Floor
    {
        Window,
        Core ///< knows nothing that draws: neither the toolkit's Gui nor its Widgets
    } floor = Window;
};
const std::vector<Room>& Rooms();

/// The room of a path, the deepest that fits; empty when it stands in none.
std::string Room_Of(const std::string& path);

/// Every include of src/ names a file that is there, in the same room or one that the room may include.
Complaints Check_Rooms(const Source_Tree& tree);

/// Every room's library links only what the room may include, and all that it does include.
Complaints Check_Links(const Source_Tree& tree);

/// No room of the core links or includes what draws.
Complaints Check_Core(const Source_Tree& tree);

/// No file of src/ or phone/ includes itself, directly or round a corner.
Complaints Check_Circles(const Source_Tree& tree);

/// The virtual phone shares src/handset with the program and nothing else, and knows no tests; neither knows Qt.
Complaints Check_Phone(const Source_Tree& tree);

/// No source is longer than 400 lines, and no test than 700.
Complaints Check_Sizes(const Source_Tree& tree);

/// No form gives a window or a control a size in pixels, which would fit one font and stand in for what its text needs.
Complaints Check_Forms(const Source_Tree& tree);

/// Sleeping, waiting, clocks, message boxes and file panels each have their one door.
Complaints Check_Doors(const Source_Tree& tree);
