// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/friends.h"

#include <QTest>

class TestFriends final : public QObject {
    Q_OBJECT

private slots:
    void matching_data()
    {
        QTest::addColumn<QStringList>("friends");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("matches");

        QTest::newRow("plain name, other case") << QStringList{"Hammer"} << "hAMMER" << true;
        QTest::newRow("the whole name, not a part") << QStringList{"Hammer"} << "Hammerhead" << false;
        QTest::newRow("star for a part") << QStringList{"*Hammer*"} << "The Hammer Head" << true;
        QTest::newRow("question mark") << QStringList{"R?il"} << "Rail" << true;
        QTest::newRow("digit") << QStringList{"Grim#"} << "Grim7" << true;
        QTest::newRow("digit is no letter") << QStringList{"Grim#"} << "GrimX" << false;
        QTest::newRow("range") << QStringList{"[a-c]at"} << "Bat" << true;
        QTest::newRow("negated range") << QStringList{"[!a-c]at"} << "Bat" << false;
        QTest::newRow("one of several") << QStringList{"Nobody", "Iron*"} << "IronFist" << true;
        QTest::newRow("no friends") << QStringList{} << "Anyone" << false;
        QTest::newRow("an empty entry befriends nobody") << QStringList{""} << "" << false;
        QTest::newRow("non-ASCII folded") << QStringList{"ÄRGER"} << "ärger" << true;
    }
    void matching()
    {
        QFETCH(QStringList, friends);
        QFETCH(QString, name);
        QFETCH(bool, matches);
        QCOMPARE(Friends::Matcher(friends).matches(name), matches);
    }

    // A name added from the list is that name only, whatever it holds.
    void patternForMatchesExactlyThatName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("other");

        // clang-format off
        QTest::newRow("plain") << "Quad" << "Quad" << "Quad2";
        QTest::newRow("star") << "*" << "[*]" << "anybody";
        QTest::newRow("question") << "who?" << "who[?]" << "whom";
        QTest::newRow("hash") << "#1" << "[#]1" << "21";
        QTest::newRow("bracket") << "[UFO]x" << "[[]UFO]x" << "Ux";
        // clang-format on
    }
    void patternForMatchesExactlyThatName()
    {
        QFETCH(QString, name);
        QFETCH(QString, pattern);
        QFETCH(QString, other);
        QCOMPARE(Friends::patternFor(name), pattern);
        const Friends::Matcher matcher({pattern});
        QVERIFY(matcher.matches(name));
        QVERIFY(!matcher.matches(other));
    }

    void entriesAreTrimmedAndNeverEmpty()
    {
        QCOMPARE(Friends::checkEntry(QStringLiteral("  Rail  ")), QStringLiteral("Rail"));
        QCOMPARE(Friends::checkEntry(QStringLiteral("   ")), std::nullopt);
        QCOMPARE(Friends::checkEntry(QStringLiteral("Bob\x01Amy")), std::nullopt);
        QCOMPARE(Friends::checkEntry(QStringLiteral("Bob\tAmy")), std::nullopt);
        // An unclosed "[" with 100 KB after it cost a second per refresh.
        const QString huge = QStringLiteral("[") + QString(100000, QLatin1Char('a'));
        QCOMPARE(Friends::checkEntry(huge), std::nullopt);
        QCOMPARE(Friends::checkEntry(huge.left(Friends::MaxEntryLength)), huge.left(Friends::MaxEntryLength));
        const Friends::Matcher matcher({huge, QStringLiteral("Bob")});
        QVERIFY(!matcher.matches(QString(300, QLatin1Char('a'))));
        QVERIFY(matcher.matches(QStringLiteral("bob")));
    }
};

QTEST_APPLESS_MAIN(TestFriends)
#include "tst_friends.moc"
