// SPDX-License-Identifier: Apache-2.0
// What a program is called, and which windows it names.
#include "portal/Conversation.h"
#include "portal/ParentWindow.h"
#include "portal/PortalSettings.h"
#include "portal/ProgramName.h"
#include "tests/support/TextPrinting.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace
{

using tapeprint::portal::askedSettings;
using tapeprint::portal::Caller;
using tapeprint::portal::headingFor;
using tapeprint::portal::jobNameFor;
using tapeprint::portal::programName;
using tapeprint::portal::waylandHandleIn;
using tapeprint::portal::x11WindowIn;

class CallingProgram : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir(data.path()).mkpath(u"applications"_qs);
        before = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", data.path().toLocal8Bit());
    }
    void TearDown() override
    {
        qputenv("XDG_DATA_HOME", before);
        QLocale::setDefault(QLocale::system());
    }
    void addEntry(const QString &identity, const QByteArray &text)
    {
        QFile file(data.filePath(u"applications/%1.desktop"_qs.arg(identity)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QTemporaryDir data;
    QByteArray before;
};

TEST_F(CallingProgram, WithADesktopEntry_IsCalledAsItSaysInThePersonsLanguage)
{
    addEntry(u"org.example.Viewer"_qs, "[Desktop Action new]\nName=New Window\n[Desktop Entry]\nName=Viewer\n"
                                       "Name[de]=Betrachter\n");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    EXPECT_EQ(programName(u"org.example.Viewer"_qs), u"Viewer"_qs);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(programName(u"org.example.Viewer"_qs), u"Betrachter"_qs);
}

TEST_F(CallingProgram, WithoutAnEntry_IsCalledByItsIdentity)
{
    EXPECT_EQ(programName(u"org.example.Unknown"_qs), u"org.example.Unknown"_qs);
    EXPECT_EQ(programName(QString()), QString());
}

TEST_F(CallingProgram, IdentityThatIsAPath_IsNotLookedFor)
{
    addEntry(u"inner"_qs, "[Desktop Entry]\nName=Reached\n");
    EXPECT_EQ(programName(u"../applications/inner"_qs), u"../applications/inner"_qs);
    EXPECT_EQ(programName(u"a\nb"_qs), u"a\\nb"_qs);
}

TEST_F(CallingProgram, TitleAndNameOfAnyLength_MakeAWindowsTitle)
{
    addEntry(u"org.example.Viewer"_qs, "[Desktop Entry]\nName=Viewer\n");
    EXPECT_EQ(headingFor({u"org.example.Viewer"_qs, {}, u"Print label"_qs, true}), u"Print label – Viewer"_qs);
    EXPECT_EQ(headingFor({{}, {}, {}, true}), u"Print"_qs);
    EXPECT_LT(headingFor({QString(100000, u'a'), {}, QString(100000, u'b'), true}).size(), 250);
    EXPECT_FALSE(headingFor({{}, {}, u"a\u202Eb"_qs, true}).contains(QChar(0x202E)));
}

TEST(ProgramsButton, HasItsLetterAndNoMarksOfOurOwn)
{
    using tapeprint::portal::buttonText;
    EXPECT_EQ(buttonText(u"_Go & print"_qs), u"&Go && print"_qs);
    EXPECT_EQ(buttonText(u"a__b"_qs), u"a_b"_qs);
    EXPECT_EQ(buttonText(QString()), QString());
    EXPECT_EQ(buttonText(QString(1000, u'x')).size(), 40);
    EXPECT_FALSE(buttonText(u"\u202Eog"_qs).contains(QChar(0x202E)));
}

TEST(ProgramsOptions, OfAnotherType_CountAsMissing)
{
    using namespace tapeprint::portal;
    EXPECT_TRUE(truthIn({{u"modal"_qs, u"false"_qs}}, u"modal"_qs, true));
    EXPECT_FALSE(truthIn({{u"modal"_qs, 1}}, u"modal"_qs, false));
    EXPECT_FALSE(truthIn({{u"modal"_qs, false}}, u"modal"_qs, true));
    EXPECT_EQ(numberIn({{u"token"_qs, u"7"_qs}}, u"token"_qs), 0U);
    EXPECT_EQ(numberIn({{u"token"_qs, 7U}}, u"token"_qs), 7U);
    EXPECT_EQ(textIn({{u"accept_label"_qs, 7}}, u"accept_label"_qs), QString());
    EXPECT_EQ(textIn({{u"accept_label"_qs, u"Go"_qs}}, u"accept_label"_qs), u"Go"_qs);
}

TEST(CallingWindow, OnlyAnX11NumberIsOne)
{
    EXPECT_EQ(x11WindowIn(u"x11:200003"_qs), std::optional<WId>(0x200003));
    EXPECT_EQ(x11WindowIn(u"x11:ffffffff"_qs), std::optional<WId>(0xffffffff));
    for (const QString &junk : {u""_qs, u"x11:"_qs, u"x11:0"_qs, u"x11:-1"_qs, u"x11:zz"_qs, u"x11:100000000"_qs,
                                u"wayland:abc"_qs, u"200003"_qs}) {
        EXPECT_EQ(x11WindowIn(junk), std::nullopt) << junk.toStdString();
    }
}

TEST(CallingWindow, OnlyAShortLineIsAHandleOnWayland)
{
    EXPECT_EQ(waylandHandleIn(u"wayland:ffd1c1e4-9a1b"_qs), "ffd1c1e4-9a1b");
    EXPECT_EQ(waylandHandleIn(u"wayland:"_qs + QString(256, u'a')), QByteArray(256, 'a'));
    EXPECT_EQ(waylandHandleIn(u"wayland: a ~!b "_qs), " a ~!b "); // one of GNOME
    for (const QString &junk :
         {u""_qs, u"wayland:"_qs, u"x11:200003"_qs, u"ffd1c1e4-9a1b"_qs, u"wayland:a\tb"_qs, u"wayland:a\nb"_qs,
          u"wayland:\u00e9"_qs, QString(u"wayland:a\0b"_qs), u"wayland:"_qs + QString(257, u'a')}) {
        EXPECT_EQ(waylandHandleIn(junk), QByteArray()) << junk.toStdString();
    }
}

TEST(JobName, OfAProgramThatTellsIt_IsTheDocuments)
{
    const Caller caller{QString(), QString(), u"Print"_qs};
    const QVariantMap settings{{u"output-basename"_qs, u" address-label "_qs}};
    EXPECT_EQ(jobNameFor(caller, askedSettings(settings, {}).documentName), u"address-label"_qs);
    EXPECT_EQ(jobNameFor(caller, u"a\nb"_qs), u"a\\nb"_qs);
    EXPECT_EQ(jobNameFor(caller, QString(5000, u'x')).size(), 128);
}

TEST(JobName, OfAProgramThatDoesNot_IsTheTitleWithTheProgram)
{
    const Caller unnamed{QString(), QString(), u"Invoice 7"_qs};
    const Caller named{u"org.example.Unknown"_qs, QString(), u"Print"_qs};
    EXPECT_EQ(jobNameFor(unnamed, askedSettings({}, {}).documentName), u"Invoice 7"_qs);
    EXPECT_EQ(jobNameFor(named, u"  "_qs), u"Print \u2013 org.example.Unknown"_qs);
    EXPECT_EQ(jobNameFor({}, askedSettings({{u"output-basename"_qs, 7}}, {}).documentName), u"Print"_qs);
}

} // namespace
