// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/settingscodec.h"

#include <QTest>

using namespace SettingsCodec;

class TestSettingsCodec final : public QObject {
    Q_OBJECT

private slots:
    void numbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::newRow("plain") << "9000" << 9000;
        QTest::newRow("leading digits") << "12abc" << 12;
        QTest::newRow("not a number") << "abc" << 0;
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("leading blanks") << "  42" << 42;
        QTest::newRow("negative") << "-5" << -5;
        QTest::newRow("plus sign") << "+7x" << 7;
        QTest::newRow("sign only") << "-" << 0;
        QTest::newRow("decimal point stops") << "3.9" << 3;
        QTest::newRow("too large clamps") << "99999999999999999999" << std::numeric_limits<int>::max();
        QTest::newRow("too small clamps") << "-99999999999999999999" << std::numeric_limits<int>::min();
    }
    void numbers()
    {
        QFETCH(QString, text);
        QFETCH(int, number);
        QCOMPARE(toNumber(text), number);
    }

    void flagsAreOnOnlyForExactlyOne()
    {
        QVERIFY(isOn(u"1"));
        for (const char* off : {"0", "", "01", "1 ", "true", "True", "2", " 1"})
            QVERIFY2(!isOn(QString::fromLatin1(off)), off);
        QCOMPARE(flagText(true), QStringLiteral("1"));
        QCOMPARE(flagText(false), QStringLiteral("0"));
    }

    void truthValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("fallback");
        QTest::addColumn<bool>("value");
        QTest::newRow("True") << "True" << false << true;
        QTest::newRow("False") << "False" << true << false;
        QTest::newRow("any case") << "tRUE" << false << true;
        QTest::newRow("zero") << "0" << true << false;
        QTest::newRow("minus one") << "-1" << false << true;
        QTest::newRow("garbage keeps fallback") << "maybe" << true << true;
        QTest::newRow("empty keeps fallback") << "" << false << false;
    }
    void truthValues()
    {
        QFETCH(QString, text);
        QFETCH(bool, fallback);
        QFETCH(bool, value);
        QCOMPARE(toTruth(text, fallback), value);
    }

    void entriesDecode_data()
    {
        const QString s = QString(EntryTerminator);
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("empty store") << QString() << QStringList{};
        QTest::newRow("two terminated") << "a" + s + "b" + s << QStringList{"a", "b"};
        QTest::newRow("trailing piece ignored") << "a" + s + "b" << QStringList{"a"};
        QTest::newRow("no terminator at all") << "abc" << QStringList{};
        QTest::newRow("empty entry kept") << "a" + s + s + "b" + s << QStringList{"a", "", "b"};
        QTest::newRow("only a terminator") << s << QStringList{""};
        QTest::newRow("non-ASCII") << QStringLiteral("caf\u00e9") + s << QStringList{QStringLiteral("caf\u00e9")};
    }
    void entriesDecode()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, entries);
        QCOMPARE(decodeEntries(text), entries);
    }

    void entriesEncodeEndsEveryEntry()
    {
        const QString s = QString(EntryTerminator);
        QCOMPARE(encodeEntries({}), QString());
        QCOMPARE(encodeEntries({"a", "", "b"}), "a" + s + s + "b" + s);
        const QStringList entries{"x", "", "y z", QStringLiteral("\u00e4\u00f6")};
        QCOMPARE(decodeEntries(encodeEntries(entries)), entries);
    }

    void entryContainingTerminatorSplitsOnNextRead()
    {
        const QString s = QString(EntryTerminator);
        QCOMPARE(decodeEntries(encodeEntries({"a" + s + "b"})), (QStringList{"a", "b"}));
    }
};

QTEST_APPLESS_MAIN(TestSettingsCodec)
#include "tst_settingscodec.moc"
