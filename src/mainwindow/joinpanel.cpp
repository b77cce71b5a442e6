// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/joinpanel.h"

#include "mainwindow/joinflow.h"
#include "mainwindow/passwordkeeper.h"
#include "mainwindow/slotwaiter.h"
#include "platform/desktop.h"
#include "presentation/colourcodes.h"
#include "presentation/multicolorlabel.h"
#include "widgets/historycombobox.h"
#include "widgets/namedcontrol.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QGridLayout>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const char* const SecretProperty = "q4vSecret";

// The remembered passwords as the box's list shows them, and as a screen
// reader reads them: one dot per character. The box itself takes an
// entry's real text (an editable combo box reads EditRole).
class MaskedPasswords final : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole || role == Qt::ToolTipRole)
            return QString(QIdentityProxyModel::data(index, Qt::EditRole).toString().size(), QChar(0x25CF));
        return QIdentityProxyModel::data(index, role);
    }
};

// What assistive technology hears of the password box: its name and dots.
// Qt's own combo box interface gives the typed text as the name on Linux.
class SecretBoxAccessible final : public QAccessibleWidget {
public:
    explicit SecretBoxAccessible(QWidget* box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
    {
    }
    QString text(QAccessible::Text t) const override
    {
        auto* box = static_cast<QComboBox*>(widget());
        if (t == QAccessible::Value)
            return QString(box->currentText().size(), QChar(0x25CF));
        if (t == QAccessible::Name)
            return box->accessibleName();
        return QAccessibleWidget::text(t);
    }
};

QAccessibleInterface* secretBoxAccessible(const QString&, QObject* object)
{
    auto* box = qobject_cast<QComboBox*>(object);
    if (box && box->property(SecretProperty).toBool())
        return new SecretBoxAccessible(box);
    return nullptr;
}

} // namespace

JoinPanel::JoinPanel(SettingsStore& settings, Desktop& desktop, GameInstalls& installs, const QString& favouritesPath,
                     const QString& historyPath, ListedServer listed, QWidget* window)
    : QFrame(window)
{
    setObjectName(QStringLiteral("fraJoin"));
    setFrameShape(QFrame::StyledPanel);
    lblPlayerName = makeControl<QLabel>(this, "lblPlayerName");
    cmbPlayerName = makeControl<HistoryComboBox>(this, "cmbPlayerName");
    lblPlayerName->setBuddy(cmbPlayerName);
    lblPassword = makeControl<QLabel>(this, "lblPassword");
    cmbPassword = makeControl<HistoryComboBox>(this, "cmbPassword");
    // Nobody looking over the player's shoulder reads the password, in the
    // box or in its list of remembered ones.
    cmbPassword->lineEdit()->setEchoMode(QLineEdit::Password);
    auto* masked = new MaskedPasswords(cmbPassword);
    // The box deletes a model of its own when given another: the list
    // moves under the mask first.
    cmbPassword->model()->setParent(masked);
    masked->setSourceModel(cmbPassword->model());
    cmbPassword->setModel(masked);
    cmbPassword->setProperty(SecretProperty, true);
    static const bool factoryInstalled = [] {
        QAccessible::installFactory(&secretBoxAccessible);
        return true;
    }();
    Q_UNUSED(factoryInstalled);
    m_passwords = new PasswordKeeper(settings, desktop.secrets(), *cmbPassword, this);
    m_passwords->restore();
    lblPassword->setBuddy(cmbPassword);
    lblPName = makeControl<QLabel>(this, "lblPName");
    mclPName = makeControl<MulticolorLabel>(this, "mclPName");
    cmdJoin = makeControl<QPushButton>(this, "cmdJoin");
    cmdJoinIP = makeControl<QPushButton>(this, "cmdJoinIP");
    cmdJoin->setAutoDefault(false);
    cmdJoinIP->setAutoDefault(false);
    m_flow =
        new JoinFlow(settings, desktop, installs, favouritesPath, historyPath, *cmbPlayerName, *cmbPassword, window);
    m_waiter = new SlotWaiter(desktop.clock(), this);
    cmdStopWaiting = makeControl<QPushButton>(window, "cmdStopWaiting");
    cmdStopWaiting->hide();

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(lblPlayerName, 0, 0);
    layout->addWidget(cmbPlayerName, 0, 1);
    layout->addWidget(lblPassword, 0, 2);
    layout->addWidget(cmbPassword, 0, 3);
    layout->addWidget(cmdJoin, 0, 4);
    layout->addWidget(cmdJoinIP, 0, 5);
    auto* playerNameRow = new QHBoxLayout;
    playerNameRow->addWidget(lblPName);
    playerNameRow->addWidget(mclPName, 1);
    layout->addLayout(playerNameRow, 1, 0, 1, 6);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);

    for (HistoryComboBox* box : {cmbPlayerName, cmbPassword})
        connect(box, &HistoryComboBox::enterPressed, this, [box] { box->remember(box->currentText()); });
    connect(cmdJoin, &QPushButton::clicked, this, [this] {
        cmbPlayerName->remember(cmbPlayerName->currentText());
        cmbPassword->remember(cmbPassword->currentText());
        emit joinRequested();
    });
    connect(cmdJoinIP, &QPushButton::clicked, m_flow, &JoinFlow::joinByAddress);

    connect(m_flow, &JoinFlow::joining, m_waiter, &SlotWaiter::cancel);
    connect(m_flow, &JoinFlow::waitRequested, this,
            [this, listed = std::move(listed)](const JoinFlow::Target& target, const QString& password) {
                // Only a listed server can be asked again; one gone meanwhile
                // is joined at once, as the documented join would.
                if (const ServerRecord* server = listed(target.address))
                    m_waiter->begin(target, password, *server);
                else
                    m_flow->start(target, password);
            });
    connect(m_waiter, &SlotWaiter::joinNow, m_flow, &JoinFlow::start);
    connect(m_waiter, &SlotWaiter::waitingChanged, cmdStopWaiting, &QWidget::setVisible);
    connect(cmdStopWaiting, &QPushButton::clicked, m_waiter, &SlotWaiter::stop);
}

void JoinPanel::ShowPlayerName(const QString& name)
{
    mclPName->setColouredText(ColourCodes::ShowPlayerName(name));
    lblPName->setText(mclPName->caption().isEmpty() ? QString() : tr("Player Name:"));
}

void JoinPanel::savePasswords()
{
    m_passwords->writeOnClose();
}

void JoinPanel::retranslate()
{
    cmdJoin->setText(tr("Join"));
    cmdJoinIP->setText(tr("Join IP"));
    cmdStopWaiting->setText(tr("Stop Waiting"));
    lblPlayerName->setText(tr("Name:"));
    lblPassword->setText(tr("Password:"));
    cmbPassword->setAccessibleName(tr("Password:"));
}
