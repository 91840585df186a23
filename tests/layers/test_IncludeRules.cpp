// SPDX-License-Identifier: Apache-2.0
// Holds the arrows between the project's rooms, and shows on planted trees that a forbidden include is found.
#include "tests/layers/IncludeRules.h"

#include <gtest/gtest.h>

#include <QString>
#include <QTemporaryDir>

#include <fstream>

namespace
{

namespace fs = std::filesystem;
using tapeprint::layers::checkIncludes;
using Findings = std::vector<std::string>;

/// A source tree of the test's own.
class Tree
{
public:
    void add(const std::string &file, const std::string &text)
    {
        fs::create_directories((root() / file).parent_path());
        std::ofstream(root() / file) << text;
    }

    fs::path root() const { return mFolder.path().toStdString(); }

    Findings findings() const { return checkIncludes(root(), {widgets()}).findings; }

    /// A folder of widget headers of the test's own, outside the tree.
    fs::path widgets() const
    {
        const fs::path folder = mWidgets.path().toStdString();
        std::ofstream(folder / "QPushButton") << "\n";
        return folder;
    }

private:
    QTemporaryDir mFolder;
    QTemporaryDir mWidgets;
};

/// The findings in a tree of this one file.
Findings findingsIn(const std::string &file, const std::string &text)
{
    Tree tree;
    tree.add(file, text);
    return tree.findings();
}

struct OneInclude {
    std::string name;    ///< of the test
    std::string file;    ///< that includes
    std::string include; ///< as written behind #include
};

std::ostream &operator<<(std::ostream &stream, const OneInclude &row)
{
    return stream << row.file << " includes " << row.include;
}

std::string testName(const ::testing::TestParamInfo<OneInclude> &info)
{
    return info.param.name;
}

class ForbiddenInclude : public ::testing::TestWithParam<OneInclude>
{
};

class AllowedInclude : public ::testing::TestWithParam<OneInclude>
{
};

TEST_P(ForbiddenInclude, IsNamedByFileAndLine)
{
    const Findings findings = findingsIn(GetParam().file, "// first line\n#include " + GetParam().include + "\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].find(GetParam().file + ":2: "), 0U) << findings[0];
}

TEST_P(AllowedInclude, IsNoFinding)
{
    EXPECT_EQ(findingsIn(GetParam().file, "#include " + GetParam().include + "\n"), Findings());
}

INSTANTIATE_TEST_SUITE_P(
    Layers, ForbiddenInclude,
    ::testing::Values(
        OneInclude{"DialogOfPanel", "dialog/Dialog.cpp", "\"panel/PageSettingPDE13_v100_.h\""},
        OneInclude{"DialogOfPlugin", "dialog/Dialog.h", "\"plugin/BasePDE.h\""},
        OneInclude{"DialogOfPpd", "dialog/Dialog.cpp", "\"ppd/PDEChoice.h\""},
        OneInclude{"DialogOfLog", "dialog/Dialog.cpp", "\"log/Log.h\""},
        OneInclude{"PanelOfDialog", "panel/units.cpp", "\"dialog/Dialog.h\""},
        OneInclude{"PanelOfLog", "panel/units.cpp", "\"log/Log.h\""},
        OneInclude{"PanelOfJobs", "panel/saving.cpp", "<cups/cups.h>"},
        OneInclude{"PluginOfDialog", "plugin/Factory.cpp", "\"dialog/Dialog.h\""},
        OneInclude{"PluginOfControls", "plugin/Factory.cpp", "\"controls/PDEFormatter.h\""},
        OneInclude{"PluginOfOtherPanelHeader", "plugin/Factory.cpp", "\"panel/PageSettingPDE13_v100_.h\""},
        OneInclude{"PluginHeaderOfPanel", "plugin/BasePDE.h", "\"panel/PanelFactory.h\""},
        OneInclude{"ControlsOfPanel", "controls/PDEFormatter.cpp", "\"panel/PageSettingPDE13_v100_.h\""},
        OneInclude{"PpdOfControls", "ppd/PDEChoice.h", "\"controls/PDEFormatter.h\""},
        OneInclude{"PpdOfPropertyLists", "ppd/TapeInfo.cpp", "<plist/plist.h>"},
        OneInclude{"LogOfPpd", "log/Log.cpp", "\"ppd/PDEChoice.h\""},
        OneInclude{"PdekitOfPpd", "pdekit/src/Bundle.cpp", "\"ppd/PDEChoice.h\""},
        OneInclude{"PdekitOfDialog", "pdekit/include/pdekit/Bundle.h", "\"dialog/Dialog.h\""},
        OneInclude{"ExportsOfPpd", "pagesettings/include/pagesettings/Exports.h", "\"ppd/PDEChoice.h\""},
        OneInclude{"ExportsOfJobs", "pagesettings/include/pagesettings/Exports.h", "<cups/cups.h>"},
        OneInclude{"DialogOfExports", "dialog/Dialog.cpp", "\"pagesettings/Exports.h\""},
        OneInclude{"PdekitOfExports", "pdekit/src/Bundle.cpp", "\"pagesettings/Exports.h\""},
        OneInclude{"PathOfExports", "ppd/TapeInfo.cpp", "\"pagesettings/include/pagesettings/Exports.h\""},
        OneInclude{"PrivateHeaderOfPdekit", "dialog/Dialog.cpp", "\"pdekit/src/Secret.h\""},
        OneInclude{"RoomInAngles", "dialog/Dialog.cpp", "<panel/PageSettingPDE13_v100_.h>"},
        OneInclude{"TestsFromARoom", "ppd/PDEChoice.cpp", "\"tests/unit/Helper.h\""},
        OneInclude{"WayAroundByDots", "dialog/Dialog.cpp", "\"../panel/PageSettingPDE13_v100_.h\""},
        OneInclude{"NoRoomNamed", "dialog/Dialog.cpp", "\"PageSettingPDE.h\""},
        OneInclude{"JobOfDialog", "job/Job.h", "\"dialog/Panels.h\""},
        OneInclude{"JobOfProgram", "job/Job.cpp", "\"tapeprint/CommandLine.h\""},
        OneInclude{"DialogOfProgram", "dialog/Dialog.cpp", "\"tapeprint/CommandLine.h\""},
        OneInclude{"JobOfAWidget", "job/Job.cpp", "<QPushButton>"},
        OneInclude{"JobOfAWidgetByModule", "job/Job.cpp", "<QtWidgets/QPushButton>"},
        OneInclude{"PanelOfJob", "panel/units.cpp", "\"job/Job.h\""},
        OneInclude{"UnknownLibrary", "pdekit/src/Bundle.cpp", "<other/library.h>"}),
    testName);

INSTANTIATE_TEST_SUITE_P(
    Layers, AllowedInclude,
    ::testing::Values(OneInclude{"DialogOfPdekit", "dialog/Dialog.cpp", "\"pdekit/PrintingCore.h\""},
                      OneInclude{"DialogOfItself", "dialog/Dialog.cpp", "\"dialog/Preview.h\""},
                      OneInclude{"DialogOfCups", "job/Printers.cpp", "<cups/cups.h>"},
                      OneInclude{"DialogOfJob", "dialog/Dialog.cpp", "\"job/Job.h\""},
                      OneInclude{"DialogOfAWidget", "dialog/Dialog.cpp", "<QPushButton>"},
                      OneInclude{"ProgramOfDialog", "tapeprint/main.cpp", "\"dialog/Dialog.h\""},
                      OneInclude{"ProgramOfJob", "tapeprint/main.cpp", "\"job/Job.h\""},
                      OneInclude{"JobOfQtCore", "job/Job.cpp", "<QString>"},
                      OneInclude{"PanelOfPlugin", "panel/construction.cpp", "\"plugin/BasePDE.h\""},
                      OneInclude{"PanelOfControls", "panel/construction.cpp", "\"controls/PDEFormatter.h\""},
                      OneInclude{"PanelOfPpdRecords", "panel/construction.cpp", "<cups/ppd.h>"},
                      OneInclude{"FactoryOfPanel", "plugin/Factory.cpp", "\"panel/PanelFactory.h\""},
                      OneInclude{"ControlsOfPpd", "controls/PDEFormatter.cpp", "\"ppd/PDEUtilsMethod.h\""},
                      OneInclude{"ExportsOfPdekit", "pagesettings/include/pagesettings/Exports.h",
                                 "\"pdekit/PrintingCore.h\""},
                      OneInclude{"LogOfExports", "log/Log.cpp", "\"pagesettings/Exports.h\""},
                      OneInclude{"PpdOfExports", "ppd/TapeInfo.cpp", "\"pagesettings/Exports.h\""},
                      OneInclude{"PanelOfExports", "panel/units.cpp", "\"pagesettings/Exports.h\""},
                      OneInclude{"LogOfPdekit", "log/Log.cpp", "<pdekit/Log.h>"},
                      OneInclude{"PdekitOfPropertyLists", "pdekit/src/PropertyList.cpp", "<plist/plist.h>"},
                      OneInclude{"PdekitOfEncodings", "pdekit/src/StringEncoding.cpp", "<unicode/ucnv.h>"},
                      OneInclude{"QtClass", "ppd/PDEChoice.h", "<QString>"},
                      OneInclude{"QtModule", "ppd/PDEChoice.h", "<QtCore/QString>"},
                      OneInclude{"Standard", "ppd/PDEChoice.h", "<vector>"},
                      OneInclude{"System", "job/Jobs.cpp", "<sys/wait.h>"},
                      OneInclude{"WrittenByMoc", "dialog/Dialog.cpp", "\"Dialog.moc\""},
                      OneInclude{"Tests", "tests/unit/test_Any.cpp", "\"panel/PageSettingPDE13_v100_.h\""}),
    testName);

TEST(Layers, OddlySpacedInclude_IsReadAllTheSame)
{
    EXPECT_EQ(findingsIn("dialog/Dialog.cpp", "  #  include\t\"panel/PageSettingPDE13_v100_.h\" // why\n").size(), 1U);
}

TEST(Layers, CommentedOutLine_IsNoInclude)
{
    EXPECT_EQ(findingsIn("dialog/Dialog.cpp", "// #include \"panel/PageSettingPDE13_v100_.h\"\n"), Findings());
}

TEST(Layers, NeighbourInTheSameFolder_NeedsNoRoomName)
{
    Tree tree;
    tree.add("pdekit/src/Handles.h", "");
    tree.add("pdekit/src/Bundle.cpp", "#include \"Handles.h\"\n");
    EXPECT_EQ(tree.findings(), Findings());
}

TEST(Layers, SecondFileOfThePluginIncludingThePanel_IsFound)
{
    Tree tree;
    tree.add("plugin/AFactory.cpp", "#include \"panel/PanelFactory.h\"\n");
    tree.add("plugin/Base.cpp", "#include \"panel/PanelFactory.h\"\n");
    ASSERT_EQ(tree.findings().size(), 1U);
    EXPECT_EQ(tree.findings()[0].find("plugin/Base.cpp:1: "), 0U) << tree.findings()[0];
}

TEST(Layers, EveryForbiddenLine_IsFoundInTheOrderOfTheFile)
{
    const Findings findings = findingsIn("ppd/PDEChoice.cpp", "#include \"panel/PageSettingPDE13_v100_.h\"\n"
                                                              "#include \"pdekit/Numbers.h\"\n"
                                                              "#include \"dialog/Dialog.h\"\n");
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings[0], "ppd/PDEChoice.cpp:1: ppd/ may not include panel/");
    EXPECT_EQ(findings[1], "ppd/PDEChoice.cpp:3: ppd/ may not include dialog/");
}

TEST(Layers, FolderOfCodeThatIsNoRoom_IsFound)
{
    EXPECT_EQ(findingsIn("cellar/Box.cpp", ""),
              Findings{"cellar/: a folder of code that the table of rooms does not name"});
    EXPECT_EQ(findingsIn("docs/page.md", ""), Findings());
}

TEST(Layers, FolderOfABuild_IsNoFolderOfCode)
{
    Tree tree;
    tree.add("build-here/CMakeCache.txt", "");
    tree.add("build-here/generated.cpp", "");
    EXPECT_EQ(tree.findings(), Findings());
}

/// Where Qt keeps the headers of its widgets on this machine.
std::vector<fs::path> widgetFolders()
{
    std::vector<fs::path> folders;
    for (const QString &folder : QStringLiteral(TAPEPRINT_WIDGET_HEADERS).split(u'|', Qt::SkipEmptyParts)) {
        if (folder.endsWith(u"/QtWidgets")) {
            folders.emplace_back(folder.toStdString());
        }
    }
    return folders;
}

TEST(Layers, TheProjectItself_KeepsToTheArrows)
{
    const tapeprint::layers::Report report = checkIncludes(TAPEPRINT_SOURCE_DIR, widgetFolders());
    ASSERT_FALSE(widgetFolders().empty()) << "no folder of widget headers among " << TAPEPRINT_WIDGET_HEADERS;
    EXPECT_TRUE(fs::exists(widgetFolders().front() / "QPushButton"));
    EXPECT_GT(report.files, 0U) << "no source was read below " << TAPEPRINT_SOURCE_DIR;
    for (const std::string &finding : report.findings) {
        ADD_FAILURE() << finding;
    }
}

} // namespace
