// SPDX-License-Identifier: GPL-2.0-or-later
#include "optionsdialog.h"
#include "presentation/contrast.h"
#include "presentation/rowtones.h"

// The options dialog's themes: chosen, saved, removed, put back on Cancel.
class TestThemeTab final : public OptionsDialogTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void cancelKeepsTheLanguageShownButUnsavedAndPutsTheThemeBack()
    {
        open();
        QCOMPARE(ThemeFile::readFile(m_themes->filePath())->list.size(), 1); // "Default", made at first opening
        choose("cmbLanguage", 1);
        QCOMPARE(m_language->current(), 1);
        m_desktop->colourAnswers << QColor(200, 0, 0);
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::ThemeTab);
        click("lstBackColour");
        QCOMPARE(listBase(), QColor(200, 0, 0));
        click("cmdCancel");
        QVERIFY(!m_form->isVisible());
        QCOMPARE(m_language->current(), 1);
        QVERIFY(!m_settings->contains(Keys::Language.key));
        QCOMPARE(listBase(), m_themes->toColor(ThemeFile::WindowBackground));
        m_language->apply(0);
    }

    void themesAreSavedChosenAndRemoved()
    {
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::ThemeTab);
        m_desktop->colourAnswers << QColor(0, 0, 128);
        click("frmBackColour");
        choose("cmbTab", 1);
        m_desktop->inputAnswers << QString(QStringLiteral("Navy"));
        click("cmdSave");
        QCOMPARE(m_desktop->inputs.last().prompt, QStringLiteral("Please enter a name for this theme"));
        ThemeFile::Themes saved = *ThemeFile::readFile(m_themes->filePath());
        QCOMPARE(saved.current, QStringLiteral("Navy"));
        QCOMPARE(saved.list.size(), 2);
        QCOMPARE(saved.list.at(1).formBack, ThemeFile::rgbColour(0, 0, 128));
        QCOMPARE(saved.list.at(1).tabStyle, qint16(ThemeFile::LargeTabs));

        // An empty answer saves nothing; the same name again replaces.
        m_desktop->inputAnswers << QString();
        click("cmdSave");
        QCOMPARE(ThemeFile::readFile(m_themes->filePath())->list.size(), 2);
        m_desktop->colourAnswers << QColor(0, 0, 64);
        click("frmBackColour");
        m_desktop->inputAnswers << QString(QStringLiteral("Navy"));
        click("cmdSave");
        saved = *ThemeFile::readFile(m_themes->filePath());
        QCOMPARE(saved.list.size(), 2);
        QCOMPARE(saved.list.at(1).formBack, ThemeFile::rgbColour(0, 0, 64));

        // Choosing "Default" shows it at once; removing it rewrites the file.
        auto* themes = find<QComboBox>("cmbThemes");
        themes->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(themes, Qt::Key_Up);
        QCOMPARE(themes->currentText(), QStringLiteral("Default"));
        QCOMPARE(find<ColourSwatch>("frmBackColour")->value(), ThemeFile::ButtonFace);
        QCOMPARE(QApplication::palette().color(QPalette::Window), m_themes->toColor(ThemeFile::ButtonFace));
        click("cmdRemove");
        saved = *ThemeFile::readFile(m_themes->filePath());
        QCOMPARE(saved.list.size(), 1);
        QCOMPARE(saved.list.first().name, QStringLiteral("Navy"));
        // Navy, then the shipped themes.
        QCOMPARE(themes->currentText(), QStringLiteral("Navy"));
        QCOMPARE(themes->count(), 1 + ThemeFile::shippedThemes().size());
    }

    // The shipped dark theme: chosen from the list, shown at once, readable,
    // and saved under its name by OK; saved, it is listed once.
    void aShippedThemeIsChosenAndSavedByOk()
    {
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::ThemeTab);
        auto* themes = find<QComboBox>("cmbThemes");
        QCOMPARE(themes->count(), 1 + ThemeFile::shippedThemes().size());
        QVERIFY(find<QPushButton>("cmdRemove")->isEnabled()); // "Default" is saved
        themes->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(themes, Qt::Key_Down);
        const ThemeFile::Theme dark = ThemeFile::shippedThemes().first();
        QCOMPARE(themes->currentText(), dark.name);
        QVERIFY2(!find<QPushButton>("cmdRemove")->isEnabled(), "nothing saved to remove yet");
        const QPalette shown = QApplication::palette();
        QCOMPARE(shown.color(QPalette::Window), m_themes->toColor(dark.formBack));
        QVERIFY(Contrast::ratio(shown.color(QPalette::WindowText), shown.color(QPalette::Window)) >= 4.5);
        // Remove, disabled here, looks it: dimmer than an enabled caption, still legible.
        const QColor disabled = shown.color(QPalette::Disabled, QPalette::ButtonText);
        QVERIFY(Contrast::ratio(disabled, shown.color(QPalette::Button)) <
                Contrast::ratio(shown.color(QPalette::Active, QPalette::ButtonText), shown.color(QPalette::Button)));
        QVERIFY(Contrast::ratio(disabled, shown.color(QPalette::Button)) >= Contrast::Legible);
        QVERIFY(Contrast::ratio(m_themes->toColor(dark.listText), listBase()) >= 4.5);
        click("cmdOK");
        const ThemeFile::Themes saved = *ThemeFile::readFile(m_themes->filePath());
        QCOMPARE(saved.current, dark.name);
        QCOMPARE(saved.list.size(), 2);
        QCOMPARE(saved.list.at(1), dark);

        open();
        QCOMPARE(find<QComboBox>("cmbThemes")->count(), 1 + ThemeFile::shippedThemes().size());
        QCOMPARE(find<QComboBox>("cmbThemes")->currentText(), dark.name);
        QVERIFY(find<QPushButton>("cmdRemove")->isEnabled());
    }

    // Pings and full servers in their tones: readable on the lists of every
    // shipped theme, the desktop's, and a mid grey a user might choose.
    void theRowTonesReadOnEveryListBackground()
    {
        QList<QColor> backgrounds{Qt::white, Qt::black, listBase()};
        for (const ThemeFile::Theme& theme : ThemeFile::shippedThemes())
            backgrounds.append(m_themes->toColor(theme.listBack));
        const QList<QColor> greys{QColor(128, 128, 128), QColor(118, 118, 118), QColor(110, 110, 110)};
        for (const QColor& background : backgrounds + greys) {
            QSet<QRgb> tones;
            for (const auto tier : {RowTones::Tier::Good, RowTones::Tier::Fair, RowTones::Tier::Poor}) {
                const QColor tone = RowTones::colour(tier, background);
                QVERIFY2(Contrast::ratio(tone, background) >= RowTones::Readable, qPrintable(background.name()));
                tones.insert(tone.rgb());
            }
            // Three tones a user tells apart, except on a mid grey, where
            // only near black or white reads.
            QVERIFY2(tones.size() == 3 || greys.contains(background), qPrintable(background.name()));
        }
        QCOMPARE(RowTones::ofPing(0), RowTones::Tier::Good);
        QCOMPARE(RowTones::ofPing(79), RowTones::Tier::Good);
        QCOMPARE(RowTones::ofPing(80), RowTones::Tier::Fair);
        QCOMPARE(RowTones::ofPing(149), RowTones::Tier::Fair);
        QCOMPARE(RowTones::ofPing(150), RowTones::Tier::Poor);
        QCOMPARE(RowTones::ofPing(9999), RowTones::Tier::Poor);
    }

    void okSavesTheShownThemeUnderItsName()
    {
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::ThemeTab);
        choose("cmbScroll", 2);
        click("cmdOK");
        const ThemeFile::Themes saved = *ThemeFile::readFile(m_themes->filePath());
        QCOMPARE(saved.current, QStringLiteral("Default"));
        QCOMPARE(ThemeFile::currentTheme(saved)->progressType, qint16(ThemeFile::Smooth));
        // The next start shows it.
        ThemeService again(m_dir->path());
        again.applyFile();
        QCOMPARE(again.applied().progressType, qint16(ThemeFile::Smooth));
    }

    void aThemeFileThatCannotBeWrittenNeverBlocksTheSettings()
    {
        QVERIFY(QDir(m_dir->path()).mkdir(ThemeFile::FileName));
        open();
        auto* message = find<QLabel>("lblMessage");
        QVERIFY(message->isVisible());
        QVERIFY2(message->text().contains(QDir::toNativeSeparators(m_themes->filePath())), qPrintable(message->text()));
        choose("cmbSpeed", 1);
        click("cmdOK");
        QVERIFY(!m_form->isVisible());
        QCOMPARE(m_settings->get(Keys::Speed.key), QStringLiteral("1"));
    }
};

QTEST_MAIN(TestThemeTab)
#include "tst_themetab.moc"
