// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/dialogbar.h"

#include "editors/frmfavourites.h"
#include "editors/frmfilters.h"
#include "editors/frmhistory.h"
#include "presentation/frmoptions.h"
#include "widgets/namedcontrol.h"

#include <QHBoxLayout>
#include <QPushButton>

DialogBar::DialogBar(SettingsStore& settings, Desktop& desktop, Language& language, ThemeService& themes,
                     GameInstalls& installs, QString dataFolder, SelectServer selectServer, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_language(language)
    , m_themes(themes)
    , m_installs(installs)
    , m_dataFolder(std::move(dataFolder))
    , m_selectServer(std::move(selectServer))
    , m_filters(new FrmFilters(settings, m_dataFolder, this))
    , cmdOrganise(makeControl<QPushButton>(this, "cmdOrganise"))
    , cmdFilters(makeControl<QPushButton>(this, "cmdFilters"))
    , cmdOptions(makeControl<QPushButton>(this, "cmdOptions"))
    , cmdRecent(makeControl<QPushButton>(this, "cmdRecent"))
    , lblHidden(makeControl<QLabel>(this, "lblHidden"))
{
    lblHidden->hide();
    m_filters->setObjectName(QStringLiteral("frmFilters"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : {cmdOrganise, cmdFilters, cmdOptions, cmdRecent})
        row->addWidget(button);
    row->addStretch();
    row->addWidget(lblHidden);

    connect(cmdOrganise, &QPushButton::clicked, this, [this] {
        auto* editor = new FrmFavourites(m_settings, m_dataFolder, window());
        editor->setAttribute(Qt::WA_DeleteOnClose);
        editor->show();
    });
    connect(cmdFilters, &QPushButton::clicked, this, [this] {
        m_filters->show();
        m_filters->raise();
        m_filters->activateWindow();
    });
    connect(m_filters, &FrmFilters::filtersChanged, this, &DialogBar::filtersChanged);
    connect(cmdOptions, &QPushButton::clicked, this, &DialogBar::openOptions);
    connect(cmdRecent, &QPushButton::clicked, this, &DialogBar::openHistory);
}

FrmOptions* DialogBar::openOptions()
{
    // Modal to the window, but not a nested event loop: the window keeps
    // drawing and tests can work the dialog.
    auto* options = new FrmOptions(m_settings, m_desktop, m_language, m_themes, m_installs, m_dataFolder, window());
    options->setAttribute(Qt::WA_DeleteOnClose);
    options->setWindowModality(Qt::WindowModal);
    options->open();
    return options;
}

FrmHistory* DialogBar::openHistory()
{
    if (!m_history) {
        m_history = new FrmHistory(m_settings, m_dataFolder, window());
        m_history->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_history, &FrmHistory::queryRequested, this, &DialogBar::historyQueryRequested);
        connect(m_history, &FrmHistory::serverChosen, this, [this](const QString& address, const QString& name) {
            if (m_selectServer(address)) {
                window()->raise();
                window()->activateWindow();
            } else {
                m_history->say(
                    tr("%1 is not listed now: \"Query Recently Played\" asks every server you played on.").arg(name));
            }
        });
    }
    m_history->show();
    m_history->raise();
    m_history->activateWindow();
    return m_history;
}

void DialogBar::joined()
{
    if (m_history)
        m_history->reload();
}

void DialogBar::setBusy(bool busy)
{
    cmdOptions->setEnabled(!busy);
    cmdOrganise->setEnabled(!busy);
}

void DialogBar::showHidden(int servers)
{
    m_hidden = servers;
    lblHidden->setText(tr("%n hidden by filters", nullptr, servers));
    lblHidden->setVisible(servers > 0);
}

void DialogBar::placeFocusAfter(QWidget* last)
{
    for (QWidget* next : {cmdOrganise, cmdFilters, cmdOptions, cmdRecent}) {
        setTabOrder(last, next);
        last = next;
    }
}

void DialogBar::retranslate()
{
    showHidden(m_hidden);
    lblHidden->setToolTip(tr("Servers that answered but do not pass the filters. \"Filters\" shows them."));
    cmdOrganise->setText(tr("Favourites"));
    cmdFilters->setText(tr("Filters"));
    cmdOptions->setText(tr("Options"));
    cmdRecent->setText(tr("Recently Played"));
}
