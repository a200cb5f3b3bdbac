#include "layers/Layer_Rules.h"

#include <algorithm>
#include <cctype>
#include <functional>
#include <set>
#include <sstream>

namespace {

constexpr std::size_t Most_Lines_Of_A_Source = 400;
constexpr std::size_t Most_Lines_Of_A_Test = 700;

std::string At(const std::string& path, int line, const std::string& what)
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
    std::string name = "corvane_" + folder;
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

// What a build makes of a file beside the one that includes it: ui_Name.h of Name.ui, Name.moc of Name.cpp.
bool Is_Made_From_A_Neighbour(const Source_Tree& tree, const std::string& path, const std::string& include)
{
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    if (include.starts_with("ui_") && include.ends_with(".h"))
        return tree.contains(folder + include.substr(3, include.size() - 5) + ".ui");
    return include.ends_with(".moc") && path == folder + include.substr(0, include.size() - 4) + ".cpp";
}

std::string Complaint_About(const Source_Tree& tree, const std::string& path, const Include& include)
{
    const std::string target = "src/" + include.path;
    if (!tree.contains(target)) {
        if (!include.is_quoted || Is_Made_From_A_Neighbour(tree, path, include.path))
            return {};
        return "\"" + include.path + "\" is no file of src/";
    }
    const Room* room = Find_Room(Room_Of(path));
    const std::string other = Room_Of(target);
    if (!room || other == room->folder || Holds(room->may_include, other))
        return {};
    return room->folder + " must not include " + include.path;
}

// Every word of a room's call of corvane_room that begins like one of our libraries.
std::vector<std::string> Linked_Libraries(const std::vector<std::string>& build_file)
{
    std::string text;
    for (const auto& line : build_file)
        text.append(line.substr(0, line.find('#'))).append(" ");
    std::vector<std::string> libraries;
    const auto open = text.find("corvane_room(");
    if (open == std::string::npos)
        return libraries;
    std::istringstream arguments(
        text.substr(text.find('(', open) + 1, text.find(')', open) - text.find('(', open) - 1));
    for (std::string word; arguments >> word;) {
        if (word.starts_with("corvane_"))
            libraries.push_back(word);
    }
    return libraries;
}

// The toolkit's headers: <QString>, <QtCore/qstring.h>, <qstring.h>.
bool Is_Of_Qt(const std::string& include)
{
    const std::string name = include.substr(include.rfind('/') + 1);
    return include.starts_with("Qt") || name.starts_with("Q") || (name.starts_with("q") && name.ends_with(".h"));
}

// Finds circles by walking along the includes; a file on the way that is met again closes one.
class Circle_Finder
{
public:
    explicit Circle_Finder(const Source_Tree& tree) : m_tree(tree) {}

    Complaints Find()
    {
        for (const auto& [path, lines] : m_tree)
            Visit(path);
        return m_complaints;
    }

private:
    void Visit(const std::string& path)
    {
        if (!Is_Cpp(path) || m_done.contains(path))
            return;
        m_way.push_back(path);
        for (const Include& include : Includes_Of(m_tree.at(path))) {
            for (const auto& target : {"src/" + include.path, include.path}) {
                if (!m_tree.contains(target))
                    continue;
                if (Holds(m_way, target))
                    m_complaints.push_back(At(path, include.line, "closes a circle back to " + target));
                else
                    Visit(target);
            }
        }
        m_way.pop_back();
        m_done.insert(path);
    }

    const Source_Tree& m_tree;
    std::vector<std::string> m_way;
    std::set<std::string> m_done;
    Complaints m_complaints;
};

bool Is_Word(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// Where the word stands as a whole from a position on; npos when nowhere.
std::size_t Find_Word(const std::string& code, const std::string& word, std::size_t from)
{
    for (auto at = code.find(word, from); at != std::string::npos; at = code.find(word, at + 1)) {
        const auto end = at + word.size();
        if ((at == 0 || !Is_Word(code[at - 1])) && (end == code.size() || !Is_Word(code[end])))
            return at;
    }
    return std::string::npos;
}

bool Names(const std::string& code, const std::string& word)
{
    return Find_Word(code, word, 0) != std::string::npos;
}

// Whether a function of this name is called that belongs to no object and to no class: sleep(1) and ::sleep(1) are such
// calls, row.select(1), model->select(1) and Rows::select(1) are not.
bool Calls_Free_Function(const std::string& code, const std::string& name)
{
    for (auto at = Find_Word(code, name, 0); at != std::string::npos; at = Find_Word(code, name, at + 1)) {
        const auto open = code.find_first_not_of(' ', at + name.size());
        if (open == std::string::npos || code[open] != '(')
            continue;
        const std::string before = code.substr(0, at);
        const bool is_member = before.ends_with(".") || before.ends_with("->");
        const bool is_scoped = before.ends_with("::") && before.size() > 2 && Is_Word(before[before.size() - 3]);
        if (!is_member && !is_scoped)
            return true;
    }
    return false;
}

struct Door
{
    std::function<bool(const std::string& code, const std::string& name)> is_used;
    std::vector<std::string> names;
    std::string behind; ///< the one place, as the beginning of a path
};

const std::vector<Door>& Doors()
{
    static const std::vector<Door> Table{
        {Calls_Free_Function,
         {"sleep", "usleep", "nanosleep", "clock_nanosleep", "poll", "ppoll", "select", "pselect", "epoll_wait"},
         "src/platform/"},
        {Names, {"sleep_for", "sleep_until", "msleep", "QTest", "QWaitCondition"}, "src/platform/"},
        {[](const std::string& code, const std::string& name) { return code.find(name) != std::string::npos; },
         {"QThread::sleep", "QThread::usleep"},
         "src/platform/"},
        {Names,
         {"currentDateTime", "currentDateTimeUtc", "currentDate", "currentTime", "currentMSecsSinceEpoch",
          "currentSecsSinceEpoch", "QElapsedTimer", "system_clock", "steady_clock", "high_resolution_clock",
          "gettimeofday", "clock_gettime"},
         "src/platform/Waiting."},
        {Calls_Free_Function, {"time"}, "src/platform/Waiting."},
        {Names, {"QMessageBox"}, "src/toolkit/Message_Boxes.cpp"},
        {Names, {"QFileDialog"}, "src/toolkit/File_Panels.cpp"},
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
        {"device", {"platform", "pdu"}, Room::Core},
        {"engine", {"platform", "texts", "list", "records", "device"}, Room::Core},
        {"doctor", {"platform", "texts", "device"}, Room::Core},
        {"toolkit", {"platform", "list", "engine"}},
        {"windows/list", {"platform", "texts", "list", "engine", "toolkit"}},
        {"windows/stores", {"platform", "texts", "records", "toolkit"}},
        {"windows/exclusion", {"platform", "texts", "list", "records", "toolkit"}},
        {"windows/phone", {"platform", "texts", "list", "device", "doctor", "toolkit"}},
        {"windows/main",
         {"platform", "texts", "list", "records", "device", "engine", "toolkit", "windows/list", "windows/stores",
          "windows/exclusion", "windows/phone"}},
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
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        if (!path.starts_with("src/") || !Is_Cpp(path))
            continue;
        if (Room_Of(path).empty())
            complaints.push_back(At(path, 1, "stands in no room"));
        for (const Include& include : Includes_Of(lines)) {
            const std::string complaint = Complaint_About(tree, path, include);
            if (!complaint.empty())
                complaints.push_back(At(path, include.line, complaint));
        }
    }
    return complaints;
}

Complaints Check_Links(const Source_Tree& tree)
{
    Complaints complaints;
    std::map<std::string, std::vector<std::string>> links;
    for (const Room& room : Rooms()) {
        const std::string build_file = "src/" + room.folder + "/CMakeLists.txt";
        if (!tree.contains(build_file))
            continue;
        const auto libraries = links[room.folder] = Linked_Libraries(tree.at(build_file));
        std::vector<std::string> allowed;
        for (const auto& other : room.may_include)
            allowed.push_back(Library_Of(other));
        for (const auto& library : libraries) {
            if (!Holds(allowed, library))
                complaints.push_back(At(build_file, 1, room.folder + " must not link " + library));
        }
    }
    for (const auto& [path, lines] : tree) {
        const std::string room = Room_Of(path);
        if (room.empty() || !Is_Cpp(path))
            continue;
        for (const Include& include : Includes_Of(lines)) {
            const std::string target = "src/" + include.path;
            const std::string other = Room_Of(target);
            if (tree.contains(target) && other != room && !Holds(links[room], Library_Of(other)))
                complaints.push_back(At(path, include.line, room + " includes " + other + " but does not link it"));
        }
    }
    return complaints;
}

Complaints Check_Core(const Source_Tree& tree)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        const Room* room = Find_Room(Room_Of(path));
        if (!room || room->floor != Room::Core)
            continue;
        for (const Include& include : Is_Cpp(path) ? Includes_Of(lines) : std::vector<Include>()) {
            if (include.path.starts_with("QtGui") || include.path.starts_with("QtWidgets"))
                complaints.push_back(At(path, include.line, room->folder + " must not include " + include.path));
        }
        for (std::size_t i = 0; path.ends_with("/CMakeLists.txt") && i < lines.size(); ++i) {
            for (const std::string drawing : {"WIDGETS", "Qt6::Gui", "Qt6::Widgets"}) {
                if (lines[i].substr(0, lines[i].find('#')).find(drawing) != std::string::npos)
                    complaints.push_back(At(path, static_cast<int>(i) + 1, room->folder + " must not link " + drawing));
            }
        }
    }
    return complaints;
}

Complaints Check_Circles(const Source_Tree& tree)
{
    return Circle_Finder(tree).Find();
}

Complaints Check_Phone(const Source_Tree& tree)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        const std::string room = path.starts_with("phone/") ? "phone" : Room_Of(path) == "handset" ? "handset" : "";
        if (room.empty() || !Is_Cpp(path))
            continue;
        for (const Include& include : Includes_Of(lines)) {
            const bool is_of_handset = include.path.starts_with("handset/");
            if (!include.is_quoted && Is_Of_Qt(include.path))
                complaints.push_back(At(path, include.line, room + " must not include Qt's " + include.path));
            else if (is_of_handset && !tree.contains("src/" + include.path))
                complaints.push_back(At(path, include.line, "\"" + include.path + "\" is no file"));
            else if (room == "handset" || is_of_handset)
                continue; // Check_Rooms has the rest
            else if (tree.contains("src/" + include.path) || tree.contains("tests/" + include.path) ||
                     (include.is_quoted && !include.path.starts_with("phone/")))
                complaints.push_back(At(path, include.line, "phone must not include " + include.path));
            else if (include.is_quoted && !tree.contains(include.path))
                complaints.push_back(At(path, include.line, "\"" + include.path + "\" is no file"));
        }
    }
    return complaints;
}

Complaints Check_Sizes(const Source_Tree& tree)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        const auto most = path.starts_with("tests/") ? Most_Lines_Of_A_Test : Most_Lines_Of_A_Source;
        if (Is_Cpp(path) && lines.size() > most)
            complaints.push_back(
                At(path, static_cast<int>(most) + 1, "goes on beyond " + std::to_string(most) + " lines"));
    }
    return complaints;
}

Complaints Check_Forms(const Source_Tree& tree)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        for (std::size_t i = 0; path.ends_with(".ui") && i < lines.size(); ++i) {
            if (lines[i].find("name=\"geometry\"") != std::string::npos ||
                lines[i].find("name=\"minimumSize\"") != std::string::npos)
                complaints.push_back(At(path, static_cast<int>(i) + 1, "gives a size that fits one font"));
        }
    }
    return complaints;
}

Complaints Check_Doors(const Source_Tree& tree)
{
    Complaints complaints;
    for (const auto& [path, lines] : tree) {
        if (!path.starts_with("src/") || !Is_Cpp(path))
            continue;
        const auto code = Code_Of(lines);
        for (const Door& door : Doors()) {
            if (path.starts_with(door.behind))
                continue;
            for (std::size_t row = 0; row < code.size(); ++row) {
                for (const auto& name : door.names) {
                    if (door.is_used(code[row], name))
                        complaints.push_back(
                            At(path, static_cast<int>(row) + 1, name + " belongs into " + door.behind));
                }
            }
        }
    }
    return complaints;
}
