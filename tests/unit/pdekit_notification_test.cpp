// SPDX-License-Identifier: Apache-2.0
// The notification centre: who is called, in which order, and who no longer is.
#include "TextPrinting.h"
#include "pdekit/NotificationCenter.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

using namespace pdekit;

namespace
{

class NotificationCenterTest : public testing::Test
{
protected:
    NotificationCenter::Handler record(const QString &who)
    {
        return [this, who](const Notification &notice) { calls.append(who + u':' + notice.name); };
    }

    NotificationCenter center;
    QObject first;
    QObject second;
    int sender = 0;
    int otherSender = 0;
    QStringList calls;
};

TEST_F(NotificationCenterTest, Post_CallsMatchingHandlersInOrderOfRegistration)
{
    center.addObserver(&first, record(u"every"_qs), QString());
    center.addObserver(&second, record(u"named"_qs), u"A"_qs);
    center.addObserver(&first, record(u"other name"_qs), u"B"_qs);
    center.addObserver(&first, record(u"sent"_qs), u"A"_qs, &sender);
    center.addObserver(&first, record(u"other sender"_qs), u"A"_qs, &otherSender);
    center.postNotification(u"A"_qs, &sender);
    EXPECT_EQ(calls, (QStringList{u"every:A"_qs, u"named:A"_qs, u"sent:A"_qs}));
}

TEST_F(NotificationCenterTest, Post_CarriesNameObjectAndText)
{
    Notification seen;
    center.addObserver(
        &first, [&](const Notification &notice) { seen = notice; }, u"A"_qs);
    center.postNotification(u"A"_qs, &sender, u"text"_qs);
    EXPECT_EQ(seen.name, u"A");
    EXPECT_EQ(seen.object, &sender);
    EXPECT_EQ(seen.text, u"text");
    center.postNotification(u"A"_qs, nullptr);
    EXPECT_EQ(seen.object, nullptr);
    EXPECT_TRUE(seen.text.isNull());
}

TEST_F(NotificationCenterTest, ObserverGone_IsNeverCalledAndItsHandlerIsDroppedAtOnce)
{
    const auto held = std::make_shared<int>(0);
    auto observer = std::make_unique<QObject>();
    center.addObserver(
        observer.get(), [held, this](const Notification &) { calls.append(u"gone"_qs); }, QString());
    EXPECT_EQ(held.use_count(), 2);
    observer.reset();
    EXPECT_EQ(held.use_count(), 1);
    center.postNotification(u"A"_qs, nullptr);
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(NotificationCenterTest, ObserverThatOutlivesItsCentre_GoesInPeace)
{
    auto observer = std::make_unique<QObject>();
    {
        NotificationCenter shortLived;
        shortLived.addObserver(observer.get(), record(u"x"_qs), QString());
    }
    observer.reset();
    EXPECT_TRUE(calls.isEmpty());
}

TEST_F(NotificationCenterTest, RemoveObserver_EndsAllItsRegistrations)
{
    center.addObserver(&first, record(u"1"_qs), u"A"_qs);
    center.addObserver(&second, record(u"2"_qs), u"A"_qs);
    center.addObserver(&first, record(u"3"_qs), QString(), &sender);
    center.removeObserver(&first);
    center.postNotification(u"A"_qs, &sender);
    EXPECT_EQ(calls, QStringList{u"2:A"_qs});
}

TEST_F(NotificationCenterTest, RemoveObserver_OfOneNameAndSender_EndsThatOneAlone)
{
    center.addObserver(&first, record(u"A of sender"_qs), u"A"_qs, &sender);
    center.addObserver(&first, record(u"A of all"_qs), u"A"_qs);
    center.addObserver(&first, record(u"all of sender"_qs), QString(), &sender);
    center.removeObserver(&first, u"A"_qs, &sender);
    center.postNotification(u"A"_qs, &sender);
    EXPECT_EQ(calls, (QStringList{u"A of all:A"_qs, u"all of sender:A"_qs}));
}

TEST_F(NotificationCenterTest, HandlerRemovesALaterOne_ItIsNoLongerCalled)
{
    center.addObserver(
        &first,
        [this](const Notification &) {
            calls.append(u"remover"_qs);
            center.removeObserver(&second);
        },
        u"A"_qs);
    center.addObserver(&second, record(u"removed"_qs), u"A"_qs);
    center.postNotification(u"A"_qs, nullptr);
    EXPECT_EQ(calls, QStringList{u"remover"_qs});
}

TEST_F(NotificationCenterTest, HandlerRemovesItself_RunsToItsEnd)
{
    const QString own = u"captured text that is too long for any small buffer"_qs;
    center.addObserver(
        &first,
        [this, own](const Notification &) {
            center.removeObserver(&first);
            calls.append(own);
        },
        u"A"_qs);
    center.postNotification(u"A"_qs, nullptr);
    center.postNotification(u"A"_qs, nullptr);
    EXPECT_EQ(calls, QStringList{own});
}

TEST_F(NotificationCenterTest, HandlerDeletesItsObserver_RunsToItsEnd)
{
    auto *observer = new QObject;
    const QString own = u"captured text that is too long for any small buffer"_qs;
    center.addObserver(
        observer,
        [this, own, observer](const Notification &) {
            delete observer;
            calls.append(own);
        },
        u"A"_qs);
    center.postNotification(u"A"_qs, nullptr);
    center.postNotification(u"A"_qs, nullptr);
    EXPECT_EQ(calls, QStringList{own});
}

TEST_F(NotificationCenterTest, HandlerPostsAndRegisters)
{
    center.addObserver(
        &first,
        [this](const Notification &) {
            center.addObserver(&second, record(u"new"_qs), u"B"_qs);
            center.postNotification(u"B"_qs, nullptr);
            calls.append(u"outer"_qs);
        },
        u"A"_qs);
    center.postNotification(u"A"_qs, nullptr);
    EXPECT_EQ(calls, (QStringList{u"new:B"_qs, u"outer"_qs}));
}

TEST(DefaultCenter, IsOneInTheProcess)
{
    EXPECT_EQ(&NotificationCenter::defaultCenter(), &NotificationCenter::defaultCenter());
}

} // namespace
