// SPDX-License-Identifier: Apache-2.0
// The table of arrows and the reader of #include lines. It reads lines, it does not preprocess: an include inside a
// comment block or behind an #if counts like any other.
#include "tests/layers/IncludeRules.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <set>
#include <string_view>

namespace tapeprint::layers
{
namespace
{

namespace fs = std::filesystem;

using Names = std::vector<std::string_view>;

/// One room: what it may include of the project besides itself, and of the libraries besides Qt and the C++ library.
struct Room {
    std::string_view name;
    Names rooms;
    Names libraries;
    bool widgets = true; ///< whether it may include headers of Qt's widgets
};

// "cups/ppd.h" is a PPD's records alone, which the plug-in borrows; "cups/" is all of CUPS, queues and jobs included.
const std::array<Room, 12> &rooms()
{
    static const std::array<Room, 12> table = {{
        {"tapeprint", {"dialog", "job", "pdekit"}, {"cups/"}},
        {"portal", {"dialog", "job", "pdekit"}, {"cups/ppd.h", "qpa/qplatformnativeinterface.h"}},
        {"dialog", {"job", "pdekit"}, {"cups/", "fontconfig/"}},
        {"job", {"pdekit"}, {"cups/"}, false},
        {"drawing",
         {"job"},
         {"poppler-document.h", "poppler-global.h", "poppler-image.h", "poppler-page-renderer.h", "poppler-page.h",
          "qpdf/"},
         false},
        {"panel", {"plugin", "controls", "ppd", "pagesettings", "pdekit"}, {"cups/ppd.h"}},
        {"plugin", {"panel", "ppd", "pagesettings", "pdekit"}, {"cups/ppd.h"}},
        {"controls", {"ppd", "pdekit"}, {"cups/ppd.h"}},
        {"ppd", {"pagesettings", "pdekit"}, {"cups/ppd.h"}},
        {"log", {"pagesettings", "pdekit"}, {"cups/ppd.h"}},
        {"pagesettings", {"pdekit"}, {"cups/ppd.h"}},
        {"pdekit", {}, {"cups/", "plist/", "unicode/"}},
    }};
    return table;
}

// The plug-in frame knows one header of the panel, and only its factory does.
constexpr std::string_view factoryRoom = "plugin";
constexpr std::string_view panelHeader = "panel/PanelFactory.h";

// Folders that hold code and are no rooms: they may include any of them, and no room includes them. A folder of code
// that is named neither here nor above is a finding, so that none is checked by nothing.
const Names &otherFolders()
{
    static const Names names = {"tests", "bench", "fuzz", "resources", "examples"};
    return names;
}

/// One #include line.
struct Include {
    std::string path;
    bool quoted = false;
};

/// \return the include on this line, or nothing when the line is none.
std::optional<Include> parseInclude(std::string_view line)
{
    const auto skip = [&line](std::string_view token) {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        if (!line.starts_with(token)) {
            return false;
        }
        line.remove_prefix(token.size());
        return true;
    };
    if (!skip("#") || !skip("include")) {
        return std::nullopt;
    }
    const bool quoted = skip("\"");
    if (!quoted && !skip("<")) {
        return std::nullopt;
    }
    return Include{std::string(line.substr(0, line.find(quoted ? '"' : '>'))), quoted};
}

std::string_view firstComponent(std::string_view path)
{
    return path.substr(0, path.find('/'));
}

bool contains(const Names &names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Folders of the project that hold code; all of them may be named by an include, few may be included by a room.
bool isProjectFolder(std::string_view name)
{
    return contains(otherFolders(), name) ||
           std::any_of(rooms().begin(), rooms().end(), [name](const Room &room) { return room.name == name; });
}

/// C++'s headers have no folder; of C's and the system's the folders are few.
bool isSystemHeader(std::string_view path)
{
    static const Names folders = {"sys", "netinet", "arpa", "linux"};
    return path.find('/') == std::string_view::npos || contains(folders, firstComponent(path));
}

/// \return what is wrong with an include of the project's folder \p target, or an empty text.
std::string checkProjectInclude(const Room &room, std::string_view path)
{
    const std::string_view target = firstComponent(path);
    if (target == room.name) {
        return {};
    }
    if (!contains(room.rooms, target)) {
        return std::string(room.name) + "/ may not include " + std::string(target) + "/";
    }
    if (room.name == factoryRoom && target == firstComponent(panelHeader) && path != panelHeader) {
        return "plugin/ may include no header of the panel but " + std::string(panelHeader);
    }
    static const Names withPublicHeaders = {"pdekit", "pagesettings"};
    if (contains(withPublicHeaders, target) && path.find('/', target.size() + 1) != std::string_view::npos) {
        return "only the public headers of " + std::string(target) + " may be included, as " + std::string(target) +
               "/NAME.h";
    }
    return {};
}

/// Whether a header is one of Qt's widgets. \param folders where Qt keeps them; a header stands in one by its plain
/// name.
bool isWidgetHeader(std::string_view path, const std::vector<fs::path> &folders)
{
    return path.starts_with("QtWidgets/") ||
           std::any_of(folders.begin(), folders.end(), [path](const fs::path &folder) {
               return path.find('/') == std::string_view::npos && fs::exists(folder / path);
           });
}

/// \return what is wrong with an include of something outside the project, or an empty text.
std::string checkLibraryInclude(const Room &room, std::string_view path, const std::vector<fs::path> &widgetFolders)
{
    if (!room.widgets && isWidgetHeader(path, widgetFolders)) {
        return std::string(room.name) + "/ has no widgets: it may not include <" + std::string(path) + ">";
    }
    if (path.starts_with("Qt") || (path.starts_with("Q") && path.find('/') == std::string_view::npos) ||
        isSystemHeader(path)) {
        return {};
    }
    const bool allowed = std::any_of(room.libraries.begin(), room.libraries.end(), [path](std::string_view library) {
        return library.ends_with('/') ? path.starts_with(library) : path == library;
    });
    return allowed ? std::string() : std::string(room.name) + "/ may not include <" + std::string(path) + ">";
}

/// \return what is wrong with an include that names no folder of the project between quotes, or an empty text.
std::string checkUnnamedInclude(const fs::path &file, std::string_view path)
{
    // What moc and uic write into the build tree, and a neighbour of the same room.
    if (path.ends_with(".moc") || path.starts_with("ui_") || path.starts_with("moc_")) {
        return {};
    }
    if (path.find('/') == std::string_view::npos && fs::exists(file.parent_path() / path)) {
        return {};
    }
    return std::string("\"").append(path).append("\" does not begin with a room's name");
}

std::string checkInclude(const Room &room, const fs::path &file, const Include &include,
                         const std::vector<fs::path> &widgetFolders)
{
    if (isProjectFolder(firstComponent(include.path)) && include.path.find('/') != std::string::npos) {
        return checkProjectInclude(room, include.path);
    }
    return include.quoted ? checkUnnamedInclude(file, include.path)
                          : checkLibraryInclude(room, include.path, widgetFolders);
}

bool isSource(const fs::path &file)
{
    static const Names suffixes = {".h", ".hpp", ".cpp", ".cc", ".c", ".inc"};
    const std::string suffix = file.extension().string();
    return contains(suffixes, suffix);
}

void checkRoom(const fs::path &root, const Room &room, const std::vector<fs::path> &widgetFolders, Report &report)
{
    std::set<fs::path> files; // in an order that does not depend on the file system
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(root / room.name)) {
        if (entry.is_regular_file() && isSource(entry.path())) {
            files.insert(entry.path());
        }
    }
    std::string factory; // the one file that has been seen to include the panel's header
    for (const fs::path &file : files) {
        ++report.files;
        const std::string name = fs::relative(file, root).generic_string();
        std::ifstream stream(file);
        std::string line;
        for (int number = 1; std::getline(stream, line); ++number) {
            const std::optional<Include> include = parseInclude(line);
            if (!include) {
                continue;
            }
            std::string wrong = checkInclude(room, file, *include, widgetFolders);
            if (wrong.empty() && room.name == factoryRoom && include->path == panelHeader) {
                if (file.extension() != ".cpp" || (!factory.empty() && factory != name)) {
                    wrong = "only one .cpp of plugin/, the factory, may include " + std::string(panelHeader);
                }
                factory = name;
            }
            if (!wrong.empty()) {
                report.findings.push_back(
                    std::string(name).append(":").append(std::to_string(number)).append(": ").append(wrong));
            }
        }
    }
}

/// Whether a folder at the root holds sources; those of a build do not count.
bool holdsSources(const fs::path &folder)
{
    if (fs::exists(folder / "CMakeCache.txt")) {
        return false;
    }
    for (const fs::directory_entry &entry : fs::directory_iterator(folder)) {
        if (entry.is_regular_file() && isSource(entry.path())) {
            return true;
        }
    }
    return false;
}

void checkFolders(const fs::path &root, Report &report)
{
    std::set<fs::path> folders;
    for (const fs::directory_entry &entry : fs::directory_iterator(root)) {
        if (entry.is_directory() && entry.path().filename().string().front() != '.') {
            folders.insert(entry.path());
        }
    }
    for (const fs::path &folder : folders) {
        if (!isProjectFolder(folder.filename().string()) && holdsSources(folder)) {
            report.findings.push_back(folder.filename().string() +
                                      "/: a folder of code that the table of rooms does not name");
        }
    }
}

} // namespace

Report checkIncludes(const fs::path &root, const std::vector<fs::path> &widgetFolders)
{
    Report report;
    checkFolders(root, report);
    for (const Room &room : rooms()) {
        if (fs::is_directory(root / room.name)) {
            checkRoom(root, room, widgetFolders, report);
        }
    }
    return report;
}

} // namespace tapeprint::layers
