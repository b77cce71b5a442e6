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
    // Apart from English (UK), a language the table does not have leaves
    // the one in use.
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
