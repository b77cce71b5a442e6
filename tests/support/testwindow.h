// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "findcontrol.h"
#include "mainwindow/frmmain.h"
#include "presentation/language.h"
#include "scripteddesktop.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"
#include "widgets/statusline.h"

#include <QApplication>
#include <QHash>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

// A settings file of its own for each test of a class, in one folder that
// also serves as the data folder; a restart within a test reads the same.
class SettingsPerTest {
public:
    SettingsStore& next()
    {
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QString::number(++m_count) + QStringLiteral(".ini")));
        return *m_store;
    }
    QString folder() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    int m_count = 0;
    std::unique_ptr<SettingsStore> m_store;
};

// The main window as a test drives it: its own settings and data folder
// (or settings shared between runs, for restarts), a scripted desktop,
// and the controls found by their names.
class TestWindow {
public:
    // Settings that outlive the window: a second run reads what the
    // first one wrote.
    explicit TestWindow(SettingsStore& settings, const QString& dataFolder = {})
        : m_settings(settings)
        , window(std::make_unique<FrmMain>(settings, desktop, language, dataFolder))
    {
    }

    // A shown window with settings of its own, asking the master on this
    // loopback port and binding its pool from startPort; prepare adjusts
    // the settings before the window reads them.
    TestWindow(quint16 masterPort, quint16 startPort, const std::function<void(SettingsStore&)>& prepare = {})
        : m_dir(std::in_place)
        , m_ownSettings(std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("settings.ini"))))
        , m_settings(*m_ownSettings)
    {
        m_settings.save(Keys::MasterServer.key, QStringLiteral("127.0.0.1:%1").arg(masterPort));
        m_settings.save(Keys::StartPort.key, QString::number(startPort));
        // Tests never fetch the public server list.
        m_settings.save(Keys::ServerListUrls.key, QString());
        if (prepare)
            prepare(m_settings);
        window = std::make_unique<FrmMain>(m_settings, desktop, language, m_dir->path());
        window->show();
    }

    SettingsStore& settings() const { return m_settings; }
    QString dataFile(const QString& name) const { return m_dir->filePath(name); }

    template <typename T> T* find(const char* name) const { return findControl<T>(window.get(), name); }
    ReportView* list(const char* name) const { return find<ReportView>(name); }
    QHeaderView* header(const char* name) const { return list(name)->header(); }
    QPushButton* button(const char* name) const { return find<QPushButton>(name); }
    QString status() const { return find<QLabel>("lblStatus")->text(); }
    // The colour the status is drawn in, as a user sees it.
    QColor statusColour() const { return textColour(find<QLabel>("lblStatus"), Qt::black); }
    // From a grab, whatever palette or style sheet set them: the colour
    // that covers most of a widget, and the colour of its text on a known
    // background (the pixel farthest from it: the edges of letters blend).
    static QColor backgroundColour(QWidget* widget)
    {
        const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QHash<QRgb, int> counts;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                ++counts[image.pixel(x, y)];
        QRgb most = 0;
        for (auto it = counts.cbegin(); it != counts.cend(); ++it)
            if (it.value() > counts.value(most))
                most = it.key();
        return QColor(most);
    }
    static QColor textColour(QWidget* widget, const QColor& background,
                             const QRect& area = QRect(QPoint(0, 0), QSize(-1, -1)))
    {
        const QImage image = widget->grab(area).toImage().convertToFormat(QImage::Format_RGB32);
        const auto distance = [&background](QRgb pixel) {
            return std::abs(qRed(pixel) - background.red()) + std::abs(qGreen(pixel) - background.green()) +
                   std::abs(qBlue(pixel) - background.blue());
        };
        QRgb farthest = background.rgb();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (distance(image.pixel(x, y)) > distance(farthest))
                    farthest = image.pixel(x, y);
        return QColor(farthest);
    }
    QAbstractItemModel* visible(const char* name) const { return list(name)->model(); }
    QString cell(const char* name, int row, int column) const
    {
        QAbstractItemModel* model = visible(name);
        return model->data(model->index(row, column)).toString();
    }
    // Every cell of a column, top to bottom, as the list shows them now.
    QStringList column(const char* name, int column) const
    {
        QStringList cells;
        for (int row = 0; row < visible(name)->rowCount(); ++row)
            cells.append(cell(name, row, column));
        return cells;
    }

    bool show()
    {
        window->show();
        return QTest::qWaitForWindowExposed(window.get());
    }
    // Clicks "Query Masters" and waits for "Done".
    bool queryMasters(int timeoutMs = 4000) const
    {
        QTest::mouseClick(button("cmdGet"), Qt::LeftButton);
        return QTest::qWaitFor([this] { return status() == QLatin1String("Done"); }, timeoutMs);
    }
    // Gives the control the keyboard focus as a click would, and returns
    // the widget that really has it (a combo box, not its line edit).
    QWidget* focus(QWidget* control) const
    {
        QApplication::setActiveWindow(window.get());
        control->setFocus(Qt::MouseFocusReason);
        if (!QTest::qWaitFor([control] { return control->hasFocus(); }, 1000))
            qFatal("%s did not take the focus", qPrintable(control->objectName()));
        return QApplication::focusWidget();
    }
    // Types text, then presses a key when one is given, into the focus.
    void type(QWidget* control, const QString& text, std::optional<Qt::Key> then = std::nullopt) const
    {
        QWidget* target = focus(control);
        QTest::keyClicks(target, text);
        if (then)
            QTest::keyClick(QApplication::focusWidget(), *then);
    }

private:
    std::optional<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_ownSettings;
    SettingsStore& m_settings;

public:
    ScriptedDesktop desktop;
    Language language;
    std::unique_ptr<FrmMain> window;
};
