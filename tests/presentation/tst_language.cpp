// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/language.h"

#include <QCoreApplication>
#include <QTest>

namespace {
QString translated(const char* source, const char* context = "DialogBar")
{
    return QCoreApplication::translate(context, source);
}
} // namespace

class TestLanguage final : public QObject {
    Q_OBJECT

private slots:
    // The three texts with "favourite" in them; the texts the program adds
    // that name favourites follow them.
    void americanEnglishSpellsFavoritesOnly()
    {
        Language language;
        QVERIFY(language.apply(1));
        QCOMPARE(translated("Query Favourites", "QueryBar"), QStringLiteral("Query Favorites"));
        QCOMPARE(translated("Favourites"), QStringLiteral("Favorites"));
        QCOMPARE(translated("&Add To Favourites", "ListMenu"), QStringLiteral("&Add To Favorites"));
        QCOMPARE(translated("Query Masters", "QueryBar"), QStringLiteral("Query Masters"));
        QCOMPARE(translated("Cancel Query", "QueryBar"), QStringLiteral("Cancel Query"));

        QVERIFY(language.apply(0));
        QCOMPARE(translated("Favourites"), QStringLiteral("Favourites"));
        QCOMPARE(language.current(), 0);
    }

    void indexOutsideTheTableChangesNothing()
    {
        Language language;
        QVERIFY(language.apply(1));
        QVERIFY(!language.apply(7));
        QVERIFY(!language.apply(-1));
        QCOMPARE(language.current(), 1);
        QCOMPARE(translated("Favourites"), QStringLiteral("Favorites"));
    }
};

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
