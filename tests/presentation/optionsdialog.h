// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "findcontrol.h"
#include "game/gameinstalls.h"
#include "presentation/colourswatch.h"
#include "presentation/frmoptions.h"
#include "presentation/language.h"
#include "presentation/startportrule.h"
#include "presentation/themeservice.h"
#include "query/masteraddress.h"
#include "scripteddesktop.h"
#include "userdata/knownservers.h"
#include "userdata/settingsstore.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

// The options dialog as a user works it: its own settings, data folder and
// scripted desktop; a fresh dialog per test.
// Test classes derive from it and call setUp() and tearDown() around each
// test.
class OptionsDialogTest : public QObject {
protected:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<Language> m_language;
    std::unique_ptr<ThemeService> m_themes;
    std::unique_ptr<GameInstalls> m_installs;
    std::unique_ptr<FrmOptions> m_form;

    FrmOptions& open()
    {
        m_installs = std::make_unique<GameInstalls>(m_desktop->places);
        m_form = std::make_unique<FrmOptions>(*m_settings, *m_desktop, *m_language, *m_themes, *m_installs,
                                              m_dir->path());
        m_form->show();
        if (!QTest::qWaitForWindowExposed(m_form.get()))
            qFatal("the options dialog did not show");
        return *m_form;
    }
    template <typename T> T* find(const char* name) const { return findControl<T>(m_form.get(), name); }
    void click(const char* name) const { QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton); }
    // Types into a box as a user does: focus it, select all, type.
    void type(const char* name, const QString& text) const
    {
        auto* box = find<QLineEdit>(name);
        box->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, text);
    }
    void choose(const char* combo, int index) const
    {
        auto* box = find<QComboBox>(combo);
        box->setFocus(Qt::MouseFocusReason);
        // Home, then Down to the entry: the keys a user presses on a closed box.
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(box, Qt::Key_Down);
    }
    QByteArray themesFile() const
    {
        QFile file(m_themes->filePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // What a list shows as its background under the theme now applied.
    static QColor listBase()
    {
        QTableView list;
        list.ensurePolished();
        return list.viewport()->palette().color(list.viewport()->backgroundRole());
    }

    void setUp()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("settings.ini")));
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_language = std::make_unique<Language>();
        m_themes = std::make_unique<ThemeService>(m_dir->path());
        m_themes->applyFile();
    }
    void tearDown()
    {
        m_form.reset();
        m_installs.reset();
        QCOMPARE(m_desktop->unexpectedCalls, 0);
    }
};
