// SPDX-License-Identifier: Apache-2.0
// A slip in an option's name is said, and names that are only strange are left alone.
#include "job/MistypedOptions.h"
#include "tests/job/TapePpd.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using tapeprint::job::mistypedOptions;
using tapeprint::job::PpdFile;

const QByteArray inkColour("*OpenUI *InkColour: PickOne\n*OrderDependency: 30 AnySetup *InkColour\n"
                           "*DefaultInkColour: Red\n*InkColour Red/Red: \"\"\n*CloseUI: *InkColour\n");

class MistypedOptions : public testing::Test
{
protected:
    QStringList said(const QString &name) const
    {
        return mistypedOptions(ppd.get(), jobtest::options({{name, u"x"_qs}}));
    }

    const PpdFile ppd = jobtest::ppdOf(jobtest::tapePpdText(inkColour));
};

TEST_F(MistypedOptions, SlipOfALetterOrTwo_IsAskedAbout)
{
    for (const char *name : {"InkColor", "inkcolor", "InkCoolour", "InkColuor", "IncKolour"}) {
        EXPECT_EQ(said(QString::fromLatin1(name)),
                  QStringList{u"The printer has no option %1: is InkColour meant?"_qs.arg(QString::fromLatin1(name))});
    }
    EXPECT_EQ(said(u"PageSise"_qs), QStringList{u"The printer has no option PageSise: is PageSize meant?"_qs});
    EXPECT_EQ(said(u"meida"_qs), QStringList{u"The printer has no option meida: is media meant?"_qs});
}

TEST_F(MistypedOptions, NamesThatAreKnownOrLikeNone_AreLeftAlone)
{
    for (const char *name : {"InkColour", "inkcolour", "media", "Media", "outputorder", "fit-to-page", "page-border",
                             "InkCover", "Glue", "sids", "cpi"}) {
        EXPECT_EQ(said(QString::fromLatin1(name)), QStringList()) << name;
    }
}

TEST_F(MistypedOptions, WithoutADescription_AttributesOfIppAreKnown)
{
    EXPECT_EQ(mistypedOptions(nullptr, jobtest::options({{u"page-range"_qs, u"1"_qs}})),
              QStringList{u"The printer has no option page-range: is page-ranges meant?"_qs});
}

} // namespace
