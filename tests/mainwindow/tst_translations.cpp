// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/gameinstalls.h"
#include "editors/frmfavourites.h"
#include "editors/frmfilters.h"
#include "editors/frmhistory.h"
#include "mainwindow/frmmain.h"
#include "presentation/frmabout.h"
#include "presentation/frmoptions.h"
#include "presentation/language.h"
#include "presentation/themeservice.h"
#include "scripteddesktop.h"
#include "update/frmdownload.h"
#include "update/frmupdate.h"
#include "userdata/settingsstore.h"
#include "widgets/mnemonics.h"
#include "widgets/reportview.h"
#include "widgets/statusline.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Every text a window shows, by the control that shows it.
QMap<QString, QString> textsOf(QWidget* window)
{
    QMap<QString, QString> texts;
    const auto add = [&texts](const QObject* control, const QString& part, const QString& text) {
        texts.insert(control->objectName() + part, Mnemonics::plain(text));
    };
    if (!window->windowTitle().isEmpty())
        add(window, QStringLiteral(":title"), window->windowTitle());
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        if (!label->objectName().isEmpty() && !label->text().isEmpty())
            add(label, QString(), label->text());
    }
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        if (!button->objectName().isEmpty() && !button->text().isEmpty())
            add(button, QString(), button->text());
    }
    for (const QTabBar* tabs : window->findChildren<QTabBar*>()) {
        for (int i = 0; i < tabs->count(); ++i)
            add(tabs->parent() ? tabs->parent() : tabs, QStringLiteral(":tab%1").arg(i), tabs->tabText(i));
    }
    for (const QComboBox* box : window->findChildren<QComboBox*>()) {
        if (box->isEditable() || box->objectName() == QLatin1String("cmbLanguage") ||
            box->objectName() == QLatin1String("cmbThemes"))
            continue;
        for (int i = 0; i < box->count(); ++i)
            add(box, QStringLiteral(":%1").arg(i), box->itemText(i));
    }
    for (const QHeaderView* header : window->findChildren<QHeaderView*>()) {
        if (header->orientation() != Qt::Horizontal || !header->model())
            continue;
        for (int i = 0; i < header->count(); ++i)
            add(header->parent(), QStringLiteral(":column%1").arg(i),
                header->model()->headerData(i, Qt::Horizontal).toString());
    }
    return texts;
}

// Words that are the same in the languages and in English.
const QSet<QString> SameEverywhere{"Quake 4 Vantage",
                                   "OK",
                                   "Ping",
                                   "Clan",
                                   "Variable",
                                   "Server",
                                   "ISDN (64k)",
                                   "ISDN (128k)",
                                   "Mod",
                                   "-",
                                   QStringLiteral("Version " Q4V_VERSION),
                                   QStringLiteral(Q4V_VERSION),
                                   "1.2.3"};

// And the words one language shares with English (the Dutch and Portuguese
// "Query Masters" are quoted as written).
QSet<QString> sameIn(int language)
{
    switch (language) {
    case 2:
        return {"Standard", "Rate", "Name:", "DSL (256k)", "DSL (512k)", "Filter"};
    case 3:
        return {"Options", "Type"};
    case 4:
        return {"Password", "Password:", "Pw", "No"};
    case 5:
        return {"Filters", "Servers", "Rate", "Query Masters"};
    case 6:
        return {"Query Masters"};
    default:
        return {};
    }
}

} // namespace

// Every window in a finished language: no empty text and nothing left in
// English. A language joins the table when its translation is complete.
class TestTranslations final : public QObject {
    Q_OBJECT

    struct Windows {
        QTemporaryDir dir;
        SettingsStore settings{dir.filePath("settings.ini")};
        ScriptedDesktop desktop;
        Language language;
        FrmMain main{settings, desktop, language, dir.path()};
        ThemeService themes{dir.path()};
        GameInstalls installs{desktop.places};
        FrmOptions options{settings, desktop, language, themes, installs, dir.path()};
        FrmFavourites favourites{settings, dir.path()};
        FrmFilters filters{settings, dir.path()};
        FrmHistory history{settings, dir.path()};
        FrmAbout about{desktop, QUrl()};
        FrmUpdate update{settings, {"1", "2", "3"}};
        FrmDownload download{desktop, {"1", "2", "3"}};

        QMap<QString, QString> texts()
        {
            QMap<QString, QString> all;
            for (QWidget* window : std::initializer_list<QWidget*>{&main, &options, &favourites, &filters, &history,
                                                                   &about, &update, &download}) {
                const QMap<QString, QString> own = textsOf(window);
                for (auto it = own.cbegin(); it != own.cend(); ++it)
                    all.insert(window->objectName() + QLatin1Char('/') + it.key(), it.value());
            }
            return all;
        }
    };

private slots:
    void everyWindowIsTranslated_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("Deustch") << 2;
        QTest::newRow("Fran\u00e7ais") << 3;
        QTest::newRow("Italiano") << 4;
        QTest::newRow("Nederlands") << 5;
        QTest::newRow("Portugu\u00eas") << 6;
    }

    void everyWindowIsTranslated()
    {
        QFETCH(int, index);
        Windows windows;
        // The options list the installs once they have been looked for.
        QTRY_VERIFY(windows.installs.known());
        const QMap<QString, QString> english = windows.texts();
        QVERIFY(english.size() > 100);
        QVERIFY(windows.language.apply(index));
        QTest::qWait(0); // the LanguageChange events
        const QMap<QString, QString> translated = windows.texts();
        QCOMPARE(translated.keys(), english.keys());
        QStringList left;
        for (auto it = translated.cbegin(); it != translated.cend(); ++it) {
            const bool same = it.value() == english.value(it.key());
            if (it.value().isEmpty() ||
                (same && !SameEverywhere.contains(it.value()) && !sameIn(index).contains(it.value())))
                left.append(it.key() + QStringLiteral(" = \"") + it.value() + QLatin1Char('"'));
        }
        QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char('\n'))));
        windows.language.apply(0);
    }

    // Every captioned control of the main window and the options has its
    // own Alt+letter in every language.
    void everyCaptionHasItsOwnLetter()
    {
        Windows windows;
        for (int index = 0; index < Language::Count; ++index) {
            QVERIFY(windows.language.apply(index));
            QTest::qWait(0);
            for (QWidget* window : std::initializer_list<QWidget*>{&windows.main, &windows.options}) {
                // Controls shown together: those outside the tab pages, and
                // those of one page.
                QMap<const QWidget*, QStringList> shownTogether;
                for (const QWidget* control : window->findChildren<QWidget*>()) {
                    const auto* button = qobject_cast<const QAbstractButton*>(control);
                    const auto* label = qobject_cast<const QLabel*>(control);
                    const QString text = button ? button->text() : label && label->buddy() ? label->text() : QString();
                    if (control->window() != window || text.isEmpty())
                        continue;
                    const QWidget* page = nullptr;
                    for (const QWidget* w = control; w != window; w = w->parentWidget())
                        if (qobject_cast<const QStackedWidget*>(w->parentWidget()))
                            page = w;
                    shownTogether[page].append(text);
                }
                for (const QTabBar* tabs : window->findChildren<QTabBar*>())
                    for (int i = 0; i < tabs->count(); ++i)
                        shownTogether[nullptr].append(tabs->tabText(i));
                for (auto it = shownTogether.cbegin(); it != shownTogether.cend(); ++it) {
                    const QStringList captions = shownTogether.value(nullptr) + (it.key() ? it.value() : QStringList());
                    QSet<QChar> letters;
                    QStringList unmarked;
                    for (const QString& caption : captions) {
                        const qsizetype at = caption.indexOf(QRegularExpression(QStringLiteral("&[^&]")));
                        if (at < 0) {
                            unmarked.append(caption);
                            continue;
                        }
                        QVERIFY2(!letters.contains(caption.at(at + 1).toLower()), qPrintable(caption));
                        letters.insert(caption.at(at + 1).toLower());
                    }
                    // A caption goes without only when the others took all its letters.
                    for (const QString& caption : std::as_const(unmarked))
                        for (const QChar c : caption)
                            QVERIFY2(!c.isLetterOrNumber() || letters.contains(c.toLower()),
                                     qPrintable(
                                         QStringLiteral("%1: %2 in %3").arg(index).arg(caption, captions.join(u'|'))));
                }
            }
        }
        windows.language.apply(0);
    }

    // A column title is read whole at its first-start width in every
    // language, and the sorted column's beside its arrow.
    void columnTitlesAreReadWhole()
    {
        Windows windows;
        windows.main.show();
        QVERIFY(QTest::qWaitForWindowExposed(&windows.main));
        auto* servers = windows.main.findChild<ReportView*>(QStringLiteral("lstServerList"));
        for (int index = 0; index < Language::Count; ++index) {
            QVERIFY(windows.language.apply(index));
            QTest::qWait(0);
            servers->header()->setSortIndicator(2, Qt::AscendingOrder); // "Players"
            for (const ReportView* list : windows.main.findChildren<ReportView*>()) {
                const QHeaderView* header = list->header();
                const int lastShown = header->logicalIndex(header->count() - 1 - header->hiddenSectionCount());
                for (int column = 0; column < header->count(); ++column) {
                    // The last column of the two big lists takes what width is left.
                    if (header->isSectionHidden(column) || (header->stretchLastSection() && column == lastShown))
                        continue;
                    const QString title = header->model()->headerData(column, Qt::Horizontal).toString();
                    int needed = header->fontMetrics().horizontalAdvance(title) +
                                 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
                    if (header->isSortIndicatorShown() && header->sortIndicatorSection() == column)
                        needed += header->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, header);
                    QVERIFY2(header->sectionSize(column) >= needed, qPrintable(QStringLiteral("%1: %2 \"%3\" %4 < %5")
                                                                                   .arg(index)
                                                                                   .arg(list->objectName(), title)
                                                                                   .arg(header->sectionSize(column))
                                                                                   .arg(needed)));
                }
            }
        }
        windows.language.apply(0);
    }

    // At the window's smallest size in every language, four-digit counts
    // are read whole and the status line's two lines fit its width.
    void theCountersAndTheStatusFitTheSmallestWindow()
    {
        Windows windows;
        windows.main.resize(FrmMain::MinimumSize);
        windows.main.show();
        QVERIFY(QTest::qWaitForWindowExposed(&windows.main));
        auto* players = windows.main.findChild<QLabel*>(QStringLiteral("lblPlayers"));
        auto* servers = windows.main.findChild<QLabel*>(QStringLiteral("lblServers"));
        auto* status = windows.main.findChild<StatusLine*>(QStringLiteral("lblStatus"));
        for (int index = 0; index < Language::Count; ++index) {
            QVERIFY(windows.language.apply(index));
            QTest::qWait(0);
            players->setText(QCoreApplication::translate("FrmMain", "%n players found", nullptr, 1555));
            servers->setText(QCoreApplication::translate("FrmMain", "%n servers found", nullptr, 1555));
            status->setStatus(QStringLiteral("Querying 1555 Servers...\nWaiting for q4master.idsoftware.com, "
                                             "master.quakehub.net\nhttps://quakehub.net/api/v1/servers/q4"),
                              StatusTone::Querying);
            QTest::qWait(0);
            for (const QLabel* counter : {players, servers})
                QVERIFY2(counter->contentsRect().width() >= counter->fontMetrics().horizontalAdvance(counter->text()),
                         qPrintable(QStringLiteral("%1: %2").arg(index).arg(counter->text())));
            const QStringList lines = status->shownLines();
            QCOMPARE(lines.size(), 2);
            for (const QString& line : lines)
                QVERIFY(status->fontMetrics().horizontalAdvance(line) <= status->contentsRect().width());
            QVERIFY(lines.first().startsWith(QStringLiteral("Querying 1555")));
        }
        windows.language.apply(0);
    }

    void theQuotedRowsAreExact_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("rows"); // cmdCancel, cmdGet, cmdFav, cancelled, not found
        QTest::newRow("Deustch") << 2
                                 << QStringList{"Anfrage abbrechen", "Master anfragen", "Favoriten anfragen",
                                                "Abgebrochen", "Text nicht gefunden"};
        QTest::newRow("Fran\u00e7ais") << 3
                                       << QStringList{"Annuler la recherche", "Recherche Principales",
                                                      "Rechercher Favoris", "Annuler",
                                                      QStringLiteral("Texte Non trouv\u00e9")};
        QTest::newRow("Italiano") << 4
                                  << QStringList{"Annulla Interrogazione", "Interroga Server", "Interroga Favoriti",
                                                 "Annulllato", "Testo Non Cercato"};
        QTest::newRow("Nederlands") << 5
                                    << QStringList{"Annuleer Query", "Query Masters", "Query Favorieten", "Geannuleerd",
                                                   "Text Niet Gevonden"};
        QTest::newRow("Portugu\u00eas") << 6
                                        << QStringList{"Cancelar Query", "Query Masters", "Query Favoritos",
                                                       "Cancelado", QStringLiteral("Texto N\u00e3o Encontrado")};
    }

    void theQuotedRowsAreExact()
    {
        QFETCH(int, index);
        QFETCH(QStringList, rows);
        Windows windows;
        windows.language.apply(index);
        QTest::qWait(0);
        const QMap<QString, QString> texts = windows.texts();
        QCOMPARE(texts.value(QStringLiteral("frmMain/cmdCancel")), rows.at(0));
        QCOMPARE(texts.value(QStringLiteral("frmMain/cmdGet")), rows.at(1));
        QCOMPARE(texts.value(QStringLiteral("frmMain/cmdFav")), rows.at(2));
        QCOMPARE(QCoreApplication::translate("QueryController", "Cancelled"), rows.at(3));
        QCOMPARE(QCoreApplication::translate("FindBar", "Text Not Found"), rows.at(4));
        if (index == 2) {
            QCOMPARE(texts.value(QStringLiteral("frmOptions/frmOptions:title")), QStringLiteral("Optionen"));
            QCOMPARE(texts.value(QStringLiteral("frmOptions/lblSpeed")),
                     QStringLiteral("Anforderungs geschwindigkeit:"));
            QCOMPARE(texts.value(QStringLiteral("frmOptions/cmbSpeed:0")), QStringLiteral("Modem (56k)"));
        }
        windows.language.apply(0);
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
