// SPDX-License-Identifier: Apache-2.0
// What the built module offers by name: the stated functions and tables and what the plug-in loader needs, no more.
#include "PanelUnderTest.h"

#include <QProcess>
#include <QStringList>

#include <algorithm>
#include <set>
#include <string>

namespace
{

/// Written out by hand, so that the linker's list of exports cannot agree with itself.
const std::set<std::string> kExpected = {
    // The plug-in loader.
    "qt_plugin_instance",
    "qt_plugin_query_metadata_v2",
    // Menu tables.
    "Get_MenuCount",
    "Get_MenuKeyStr",
    "OP_MENU",
    "QUAL_MENU",
    // The tape in use.
    "GetTapeInfo",
    "GetTapeInfo2",
    "GetTapeInfo3",
    "GetTicketFromSession",
    // Lengths.
    "RoundDouble",
    "MiriToInch",
    "InchToMiri",
    // Diagnostics.
    "_PDEProlog",
    "_PDEEpilog",
    "_PDELog",
    "_PDELog_ppd_option_t",
    "_PDELog_PMPrintSettings_WriteToFile",
    "debugLog",
    "debugLogFd",
    "memoryCheck",
    "memoryCheckFd",
};

/// What a build with sanitizers adds by itself.
bool isOfTheSanitizers(const std::string &symbol)
{
#ifdef __SANITIZE_ADDRESS__
    const char *const prefixes[] = {"__asan_", "__odr_asan", "__ubsan_", "__sanitizer_"};
    return std::any_of(std::begin(prefixes), std::end(prefixes),
                       [&symbol](const char *prefix) { return symbol.rfind(prefix, 0) == 0; });
#else
    return symbol.empty();
#endif
}

std::set<std::string> definedSymbols(const QString &module)
{
    QProcess nm;
    nm.start(QStringLiteral("nm"),
             {QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral("--format=posix"), module});
    if (!nm.waitForFinished() || nm.exitStatus() != QProcess::NormalExit || nm.exitCode() != 0) {
        ADD_FAILURE() << "nm (binutils): " << nm.errorString().toStdString() << nm.readAllStandardError().toStdString();
        return {};
    }
    std::set<std::string> symbols;
    const QList<QByteArray> lines = nm.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        if (!line.isEmpty()) {
            symbols.insert(line.left(line.indexOf(' ')).toStdString());
        }
    }
    return symbols;
}

TEST(Exports, Module_OffersExactlyTheStatedNames)
{
    std::set<std::string> symbols = definedSymbols(LoadedBundle().modulePath());
    std::erase_if(symbols, isOfTheSanitizers);
    EXPECT_EQ(symbols, kExpected);
}

TEST(Exports, FunctionsAndTables_AreFoundUnderTheirPlainNames)
{
    const LoadedBundle loaded;
    for (const std::string &name : kExpected) {
        EXPECT_NE(loaded.symbol(name.c_str()), nullptr) << name;
    }
    using MenuKey = const char *(std::int32_t, const void *, std::size_t);
    // Three rows of identifier, key and flag, each in a word of its own.
    EXPECT_STREQ(loaded.function<MenuKey>("Get_MenuKeyStr")(102, loaded.symbol("QUAL_MENU"), sizeof(void *) * 3 * 3),
                 "QUAL2_KEY");
}

} // namespace
