#include "layers/Layer_Rules.h"

#include <algorithm>
#include <functional>
#include <regex>
#include <set>

namespace {

constexpr std::size_t Most_Lines_Of_A_Source = 400;
constexpr std::size_t Most_Lines_Of_A_Test = 700;

std::string At(const std::string& path, std::size_t line, const std::string& what)
{
    return path + ":" + std::to_string(line) + ": " + what;
}

bool Holds(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

const Room* Find_Room(const std::string& folder)
{
    const auto& rooms = Rooms();
    const auto room = std::find_if(rooms.begin(), rooms.end(), [&](const Room& each) { return each.folder == folder; });
    return room == rooms.end() ? nullptr : &*room;
}

std::string Library_Of(const std::string& folder)
{
    return "corvane_" + std::regex_replace(folder, std::regex("/"), "_");
}

// Complaints about includes of C++ files, and about lines, of which C++ files show their code only. A rule says what is
// wrong, or nothing.
Complaints About_Includes(const Source_Tree& tree,
                          const std::function<std::string(const std::string& path, const Include& include)>& rule)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        for (const Include& include : Is_Cpp(path) ? Includes_Of(lines) : std::vector<Include>()) {
            if (const std::string what = rule(path, include); !what.empty())
                complaints.push_back(At(path, include.line, what));
        }
    }
    return complaints;
}

Complaints About_Lines(const Source_Tree& tree,
                       const std::function<std::string(const std::string& path, const std::string& line)>& rule)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        std::size_t number = 0;
        for (const std::string& line : Is_Cpp(path) ? Code_Of(lines) : lines) {
            ++number;
            if (const std::string what = rule(path, line); !what.empty())
                complaints.push_back(At(path, number, what));
        }
    }
    return complaints;
}

Complaints Both(Complaints some, const Complaints& others)
{
    some.insert(some.end(), others.begin(), others.end());
    return some;
}

// What a build makes of a file beside the one that includes it: ui_Name.h of Name.ui, Name.moc of Name.cpp.
bool Is_Made_From_A_Neighbour(const Source_Tree& tree, const std::string& path, const std::string& include)
{
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    if (include.starts_with("ui_") && include.ends_with(".h"))
        return tree.contains(folder + include.substr(3, include.size() - 5) + ".ui");
    return include.ends_with(".moc") && path == folder + include.substr(0, include.size() - 4) + ".cpp";
}

// Every word of a room's call of corvane_room that begins like one of our libraries.
std::vector<std::string> Linked_Libraries(const std::vector<std::string>& build_file)
{
    static const std::regex call(R"(corvane_room\(([^)]*)\))");
    static const std::regex library(R"(\bcorvane_\w+)");
    std::string text;
    for (const auto& line : build_file)
        text += line.substr(0, line.find('#')) + " ";
    std::smatch found;
    if (!std::regex_search(text, found, call))
        return {};
    const std::string arguments = found[1];
    return std::vector<std::string>(std::sregex_token_iterator(arguments.begin(), arguments.end(), library), {});
}

// The toolkit's headers: <QString>, <QtCore/qstring.h>, <qstring.h>.
bool Is_Of_Qt(const std::string& include)
{
    const std::string name = include.substr(include.rfind('/') + 1);
    return include.starts_with("Qt") || name.starts_with("Q") || (name.starts_with("q") && name.ends_with(".h"));
}

struct Door
{
    std::string before; ///< and after the name, where it is used; regular expressions
    std::string after;
    std::vector<std::string> names;
    std::string behind; ///< the one place, as the beginning of a path
};

const std::vector<Door>& Doors()
{
    // A function that belongs to no object and to no class is called: sleep(1) and ::sleep(1) are such calls,
    // row.select(1), model->select(1) and Rows::select(1) are not.
    static const std::string free = R"((^|[^\w.:>]|[^-]>|(^|\W)::))";
    static const std::string call = R"( *\()";
    static const std::string edge = R"(\b)";
    static const std::vector<Door> Table{
        {free,
         call,
         {"sleep", "usleep", "nanosleep", "clock_nanosleep", "poll", "ppoll", "select", "pselect", "epoll_wait"},
         "src/platform/"},
        {edge,
         edge,
         {"sleep_for", "sleep_until", "msleep", "QTest", "QWaitCondition", "QThread::sleep", "QThread::usleep"},
         "src/platform/"},
        {edge,
         edge,
         {"currentDateTime", "currentDateTimeUtc", "currentDate", "currentTime", "currentMSecsSinceEpoch",
          "currentSecsSinceEpoch", "QElapsedTimer", "system_clock", "steady_clock", "high_resolution_clock",
          "gettimeofday", "clock_gettime"},
         "src/platform/Waiting."},
        {free, call, {"time"}, "src/platform/Waiting."},
        {edge, edge, {"QMessageBox"}, "src/toolkit/Message_Boxes.cpp"},
        {edge, edge, {"QFileDialog"}, "src/toolkit/File_Panels.cpp"},
    };
    return Table;
}

} // namespace

const std::vector<Room>& Rooms()
{
    static const std::vector<Room> Table{
        {"platform", {}, Room::Core},
        {"texts", {}, Room::Core},
        {"handset", {}, Room::Core},
        {"pdu", {}, Room::Core},
        {"list", {"platform", "texts"}, Room::Core},
        {"records", {"platform", "list"}, Room::Core},
        {"device", {"platform", "handset", "pdu"}, Room::Core},
        {"engine", {"platform", "texts", "handset", "list", "records", "device"}, Room::Core},
        {"plan", {"platform", "texts", "handset", "list", "records", "device", "engine"}, Room::Core},
        {"doctor", {"platform", "texts", "device"}, Room::Core},
        {"send", {"platform", "texts", "handset", "list", "records", "device", "engine", "plan", "doctor"}, Room::Core},
        {"toolkit", {"platform", "texts", "list", "engine"}},
        {"windows/list", {"platform", "texts", "list", "engine", "plan", "toolkit"}},
        {"windows/stores", {"platform", "texts", "records", "toolkit"}},
        {"windows/exclusion", {"platform", "texts", "list", "records", "toolkit"}},
        {"windows/phone", {"platform", "texts", "list", "device", "doctor", "toolkit"}},
        {"windows/jobs", {"platform", "texts", "records", "engine", "toolkit"}},
        {"windows/contacts", {"platform", "texts", "list", "records", "engine", "plan", "toolkit"}},
        {"windows/handover", {"platform", "records", "engine", "plan", "toolkit"}},
        {"windows/main",
         {"platform", "texts", "list", "records", "device", "engine", "plan", "toolkit", "windows/list",
          "windows/stores", "windows/exclusion", "windows/phone", "windows/jobs", "windows/contacts",
          "windows/handover"}},
        {"app", {"platform", "texts", "records", "device", "toolkit", "windows/main"}},
    };
    return Table;
}

std::string Room_Of(const std::string& path)
{
    std::string deepest;
    for (const Room& room : Rooms()) {
        if (path.starts_with("src/" + room.folder + "/") && room.folder.size() > deepest.size())
            deepest = room.folder;
    }
    return deepest;
}

Complaints Check_Rooms(const Source_Tree& tree)
{
    Complaints homeless;
    for (const auto& [path, lines] : tree) {
        if (path.starts_with("src/") && Is_Cpp(path) && Room_Of(path).empty())
            homeless.push_back(At(path, 1, "stands in no room"));
    }
    const auto rule = [&](const std::string& path, const Include& include) -> std::string {
        const std::string target = "src/" + include.path;
        const bool is_known =
            tree.contains(target) || !include.is_quoted || Is_Made_From_A_Neighbour(tree, path, include.path);
        if (path.starts_with("src/") && !is_known)
            return "\"" + include.path + "\" is no file of src/";
        const Room* room = Find_Room(Room_Of(path));
        const std::string other = Room_Of(target);
        if (!room || !tree.contains(target) || other == room->folder || Holds(room->may_include, other))
            return {};
        return room->folder + " must not include " + include.path;
    };
    return Both(homeless, About_Includes(tree, rule));
}

Complaints Check_Links(const Source_Tree& tree)
{
    Complaints complaints;
    std::map<std::string, std::vector<std::string>> links;
    for (const Room& room : Rooms()) {
        const std::string build_file = "src/" + room.folder + "/CMakeLists.txt";
        if (tree.contains(build_file))
            links[room.folder] = Linked_Libraries(tree.at(build_file));
        std::vector<std::string> allowed;
        for (const auto& other : room.may_include)
            allowed.push_back(Library_Of(other));
        for (const auto& library : links[room.folder]) {
            if (!Holds(allowed, library))
                complaints.push_back(At(build_file, 1, room.folder + " must not link " + library));
        }
    }
    const auto rule = [&](const std::string& path, const Include& include) -> std::string {
        const std::string room = Room_Of(path);
        const std::string other = Room_Of("src/" + include.path);
        if (room.empty() || !tree.contains("src/" + include.path) || other == room ||
            Holds(links[room], Library_Of(other)))
            return {};
        return room + " includes " + other + " but does not link it";
    };
    return Both(complaints, About_Includes(tree, rule));
}

Complaints Check_Core(const Source_Tree& tree)
{
    const auto is_of_core = [](const std::string& path) {
        const Room* room = Find_Room(Room_Of(path));
        return room && room->floor == Room::Core;
    };
    const auto of_includes = [&](const std::string& path, const Include& include) -> std::string {
        const bool draws = include.path.starts_with("QtGui") || include.path.starts_with("QtWidgets");
        return is_of_core(path) && draws ? Room_Of(path) + " must not include " + include.path : "";
    };
    const auto of_links = [&](const std::string& path, const std::string& line) -> std::string {
        static const std::regex drawing("^[^#]*(WIDGETS|Qt6::Gui|Qt6::Widgets)");
        std::smatch found;
        if (!path.ends_with("/CMakeLists.txt") || !is_of_core(path) || !std::regex_search(line, found, drawing))
            return {};
        return Room_Of(path) + " must not link " + found.str(1);
    };
    return Both(About_Includes(tree, of_includes), About_Lines(tree, of_links));
}

// Walks along the includes; a file on the way that is met again closes a circle.
Complaints Check_Circles(const Source_Tree& tree)
{
    Complaints complaints;
    std::vector<std::string> way;
    std::set<std::string> seen;
    const std::function<void(const std::string&)> visit = [&](const std::string& path) {
        if (!Is_Cpp(path) || !seen.insert(path).second)
            return;
        way.push_back(path);
        for (const Include& include : Includes_Of(tree.at(path))) {
            for (const auto& target : {"src/" + include.path, include.path}) {
                if (Holds(way, target))
                    complaints.push_back(At(path, include.line, "closes a circle back to " + target));
                else if (tree.contains(target))
                    visit(target);
            }
        }
        way.pop_back();
    };
    for (const auto& [path, lines] : tree)
        visit(path);
    return complaints;
}

Complaints Check_Phone(const Source_Tree& tree)
{
    return About_Includes(tree, [&](const std::string& path, const Include& include) -> std::string {
        const std::string room = path.starts_with("phone/") ? "phone" : Room_Of(path) == "handset" ? "handset" : "";
        const bool is_of_handset = include.path.starts_with("handset/");
        if (room.empty())
            return {};
        if (!include.is_quoted && Is_Of_Qt(include.path))
            return room + " must not include Qt's " + include.path;
        if (is_of_handset && !tree.contains("src/" + include.path))
            return "\"" + include.path + "\" is no file";
        if (room == "handset" || is_of_handset)
            return {}; // Check_Rooms has the rest
        if (tree.contains("src/" + include.path) || tree.contains("tests/" + include.path) ||
            (include.is_quoted && !include.path.starts_with("phone/")))
            return "phone must not include " + include.path;
        return include.is_quoted && !tree.contains(include.path) ? "\"" + include.path + "\" is no file" : "";
    });
}

Complaints Check_Sizes(const Source_Tree& tree)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        const auto most = path.starts_with("tests/") ? Most_Lines_Of_A_Test : Most_Lines_Of_A_Source;
        if (Is_Cpp(path) && lines.size() > most)
            complaints.push_back(At(path, most + 1, "goes on beyond " + std::to_string(most) + " lines"));
    }
    return complaints;
}

Complaints Check_Forms(const Source_Tree& tree)
{
    return About_Lines(tree, [](const std::string& path, const std::string& line) -> std::string {
        static const std::regex size("name=\"(geometry|minimumSize)\"");
        const bool gives_one = path.ends_with(".ui") && std::regex_search(line, size);
        return gives_one ? "gives a size that fits one font" : "";
    });
}

Complaints Check_Doors(const Source_Tree& tree)
{
    return About_Lines(tree, [](const std::string& path, const std::string& code) -> std::string {
        if (!path.starts_with("src/") || !Is_Cpp(path))
            return {};
        for (const Door& door : Doors()) {
            for (const auto& name : door.names) {
                if (!path.starts_with(door.behind) && code.find(name) != std::string::npos &&
                    std::regex_search(code, std::regex(door.before + name + door.after)))
                    return name + " belongs into " + door.behind;
            }
        }
        return {};
    });
}
