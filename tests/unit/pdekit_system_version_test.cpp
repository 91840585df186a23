// SPDX-License-Identifier: Apache-2.0
// The level of the panel interface, and the source that tests put behind it.
#include "pdekit/SystemVersion.h"

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

TEST(Gestalt, PanelInterface_Is10_6_0)
{
    std::int32_t major = -1;
    std::int32_t minor = -1;
    std::int32_t bugFix = -1;
    EXPECT_EQ(Gestalt(0x73797331U, &major), kPMNoError);
    EXPECT_EQ(Gestalt(0x73797332U, &minor), kPMNoError);
    EXPECT_EQ(Gestalt(0x73797333U, &bugFix), kPMNoError);
    EXPECT_EQ(major, 10);
    EXPECT_EQ(minor, 6);
    EXPECT_EQ(bugFix, 0);
}

TEST(Gestalt, UnknownSelector_IsAnErrorAndLeavesTheResponse)
{
    std::int32_t response = 42;
    EXPECT_NE(Gestalt(gestaltSelector("sys4"), &response), kPMNoError);
    EXPECT_EQ(response, 42);
    EXPECT_EQ(Gestalt(gestaltSystemVersionMajor, nullptr), kPMInvalidParameter);
}

TEST(Gestalt, OtherSource_AnswersUntilItIsSetBack)
{
    setGestaltSource([](std::uint32_t, std::int32_t *response) -> OSStatus {
        *response = 9;
        return kPMNoError;
    });
    std::int32_t major = -1;
    EXPECT_EQ(Gestalt(gestaltSystemVersionMajor, &major), kPMNoError);
    EXPECT_EQ(major, 9);
    setGestaltSource({});
    EXPECT_EQ(Gestalt(gestaltSystemVersionMajor, &major), kPMNoError);
    EXPECT_EQ(major, 10);
}

} // namespace
