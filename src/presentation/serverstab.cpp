// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/serverstab.h"

#include "platform/desktop.h"
#include "query/masteraddress.h"
#include "query/serverlistreader.h"
#include "userdata/knownservers.h"
#include "userdata/settingsstore.h"
#include "widgets/namedcontrol.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

AddressListEditor::AddressListEditor(Desktop& desktop, const char* name, Check check, QWidget* parent)
    : QWidget(parent)
    , m_desktop(desktop)
    , m_check(std::move(check))
{
    const QByteArray prefix(name);
    m_caption = makeControl<QLabel>(this, QByteArray("lbl" + prefix).constData());
    m_list = makeControl<QListWidget>(this, QByteArray("lst" + prefix).constData());
    m_add = makeControl<QPushButton>(this, QByteArray("cmd" + prefix + "Add").constData());
    m_edit = makeControl<QPushButton>(this, QByteArray("cmd" + prefix + "Edit").constData());
    m_remove = makeControl<QPushButton>(this, QByteArray("cmd" + prefix + "Remove").constData());
    m_caption->setBuddy(m_list);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_caption, 0, 0, 1, 2);
    grid->addWidget(m_list, 1, 0, 4, 1);
    grid->addWidget(m_add, 1, 1);
    grid->addWidget(m_edit, 2, 1);
    grid->addWidget(m_remove, 3, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 1);

    connect(m_add, &QPushButton::clicked, this, &AddressListEditor::add);
    connect(m_edit, &QPushButton::clicked, this, &AddressListEditor::edit);
    connect(m_remove, &QPushButton::clicked, this, &AddressListEditor::remove);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &AddressListEditor::edit);
    // Edit and Remove act on the entry the user sees chosen: a current row
    // without a selection (the list merely took the focus) is none.
    connect(m_list, &QListWidget::itemSelectionChanged, this, &AddressListEditor::updateButtons);
    updateButtons();
}

void AddressListEditor::setTexts(const Texts& texts)
{
    m_texts = texts;
    m_caption->setText(texts.caption);
    m_add->setText(tr("Add..."));
    m_edit->setText(tr("Edit..."));
    m_remove->setText(tr("Remove"));
}

QStringList AddressListEditor::entries() const
{
    QStringList entries;
    for (int i = 0; i < m_list->count(); ++i)
        entries.append(m_list->item(i)->text());
    return entries;
}

void AddressListEditor::setEntries(const QStringList& entries)
{
    m_list->clear();
    m_list->addItems(entries);
    updateButtons();
}

std::optional<QString> AddressListEditor::ask(const QString& start)
{
    QString typed = start;
    // Asked again until the entry is valid or the user gives up: what was
    // typed is never lost to a refusal.
    for (;;) {
        const auto answer = m_desktop.inputText(this, m_texts.dialogTitle, m_texts.prompt, typed);
        if (!answer || answer->trimmed().isEmpty())
            return std::nullopt;
        typed = answer->trimmed();
        if (const auto valid = m_check(typed))
            return valid;
        m_desktop.message(this, Desktop::Icon::Warning, m_texts.dialogTitle, m_texts.refused.arg(typed),
                          QMessageBox::Ok);
    }
}

void AddressListEditor::add()
{
    // Said before anything is typed, so nothing typed is lost to it.
    if (m_list->count() >= m_maxEntries) {
        m_desktop.message(this, Desktop::Icon::Information, m_texts.dialogTitle, m_texts.full, QMessageBox::Ok);
        return;
    }
    const auto entry = ask(QString());
    if (!entry)
        return;
    const auto found = m_list->findItems(*entry, Qt::MatchFixedString);
    if (!found.isEmpty()) {
        m_list->setCurrentItem(found.first());
        return;
    }
    m_list->addItem(*entry);
    m_list->setCurrentRow(m_list->count() - 1);
}

QListWidgetItem* AddressListEditor::chosen() const
{
    const QList<QListWidgetItem*> selected = m_list->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

void AddressListEditor::edit()
{
    QListWidgetItem* item = chosen();
    if (!item)
        return;
    if (const auto entry = ask(item->text()))
        item->setText(*entry);
}

void AddressListEditor::remove()
{
    if (QListWidgetItem* item = chosen())
        delete m_list->takeItem(m_list->row(item));
    updateButtons();
}

void AddressListEditor::updateButtons()
{
    const bool any = chosen() != nullptr;
    m_edit->setEnabled(any);
    m_remove->setEnabled(any);
}

namespace {

std::optional<QString> checkMaster(const QString& typed)
{
    const auto master = parseMasterAddress(typed);
    if (!master || typed.contains(QLatin1Char(',')))
        return std::nullopt;
    return masterAddressText(*master);
}

std::optional<QString> checkListUrl(const QString& typed)
{
    const ServerListReader::UrlList list = ServerListReader::parseUrls(typed);
    if (list.urls.size() != 1 || !list.refused.isEmpty())
        return std::nullopt;
    return ServerListReader::urlsText(list.urls);
}

QStringList masterEntries(const QString& setting)
{
    QStringList entries;
    for (const MasterAddress& master : parseMasterList(setting).masters)
        entries.append(masterAddressText(master));
    return entries;
}

QStringList urlEntries(const QString& setting)
{
    QStringList entries;
    for (const QUrl& url : ServerListReader::parseUrls(setting).urls)
        entries.append(ServerListReader::urlsText({url}));
    return entries;
}

} // namespace

ServersTab::ServersTab(SettingsStore& settings, Desktop& desktop, QString knownServersPath, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_knownPath(std::move(knownServersPath))
{
    // A query asks no more than these: the options keep no more.
    m_masters = new AddressListEditor(desktop, "Masters", checkMaster, this);
    m_masters->setMaxEntries(MasterList::Max);
    m_lists = new AddressListEditor(desktop, "ServerLists", checkListUrl, this);
    m_lists->setMaxEntries(ServerListReader::UrlList::Max);
    chkQueryKnown = makeControl<QCheckBox>(this, "chkQueryKnown");
    cmdForgetKnown = makeControl<QPushButton>(this, "cmdForgetKnown");
    lblKnown = makeControl<QLabel>(this, "lblKnown");

    auto* known = new QHBoxLayout;
    known->addWidget(cmdForgetKnown);
    known->addWidget(lblKnown, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_masters, 1);
    layout->addWidget(m_lists, 1);
    layout->addWidget(chkQueryKnown);
    layout->addLayout(known);

    connect(cmdForgetKnown, &QPushButton::clicked, this, &ServersTab::forgetKnown);
    retranslateUi();
}

void ServersTab::retranslateUi()
{
    m_masters->setTexts(
        {tr("Master servers, all asked at once:"), tr("Master Server"),
         tr("Host name or address of a master server, with :port when it is not %1:").arg(MasterAddress::DefaultPort),
         // %1 is the typed address, filled in when it is refused.
         tr("\"%1\" is not a master server address. Type a host name or an IP address, followed by "
            "a colon and a port from 1 to 65535 when the port is not %2.")
             .arg(QStringLiteral("%1"), QString::number(MasterAddress::DefaultPort)),
         tr("At most %1 master servers are asked. Remove one before adding another.").arg(MasterList::Max)});
    m_lists->setTexts({tr("Server lists on the web, fetched alongside:"), tr("Server List"),
                       tr("Web address of a server list (JSON or one host:port per line):"),
                       tr("\"%1\" is not a web address. Type an address that begins with http:// or https://."),
                       tr("At most %1 server lists are fetched. Remove one before adding another.")
                           .arg(ServerListReader::UrlList::Max)});
    chkQueryKnown->setText(tr("Remember servers that answered and query them again"));
    cmdForgetKnown->setText(tr("Forget known servers"));
    showKnownCount();
}

void ServersTab::load()
{
    m_loadedMasters = masterEntries(m_settings.value(Keys::MasterServer));
    m_loadedUrls = urlEntries(m_settings.value(Keys::ServerListUrls));
    m_masters->setEntries(m_loadedMasters);
    m_lists->setEntries(m_loadedUrls);
    chkQueryKnown->setChecked(m_settings.value(Keys::QueryKnownServers));
    showKnownCount();
}

void ServersTab::save()
{
    const QStringList masters = m_masters->entries();
    if (masters != m_loadedMasters) {
        m_settings.set(Keys::MasterServer, masters.join(QStringLiteral(", ")));
        m_loadedMasters = masters;
    }
    const QStringList urls = m_lists->entries();
    if (urls != m_loadedUrls) {
        m_settings.set(Keys::ServerListUrls, urls.join(QLatin1Char(' ')));
        m_loadedUrls = urls;
    }
    m_settings.set(Keys::QueryKnownServers, chkQueryKnown->isChecked());
}

void ServersTab::resetToDefaults()
{
    m_masters->setEntries(masterEntries(Keys::MasterServer.defaultValue.toString()));
    m_lists->setEntries(urlEntries(Keys::ServerListUrls.defaultValue.toString()));
    chkQueryKnown->setChecked(Keys::QueryKnownServers.defaultValue);
}

void ServersTab::forgetKnown()
{
    const int count = int(KnownServers::readFile(m_knownPath).size());
    const auto answer = m_desktop.message(this, Desktop::Icon::Question, tr("Forget known servers"),
                                          tr("Forget the %n servers that answered before? Query Masters asks them "
                                             "again only when a master or a server list names them.",
                                             nullptr, count),
                                          QMessageBox::Yes | QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    if (!KnownServers::forget(m_knownPath))
        m_desktop.message(this, Desktop::Icon::Warning, tr("Forget known servers"),
                          tr("The known servers could not be removed from %1.").arg(m_knownPath), QMessageBox::Ok);
    showKnownCount();
}

void ServersTab::showKnownCount()
{
    const int count = int(KnownServers::readFile(m_knownPath).size());
    lblKnown->setText(count == 0 ? tr("No servers known yet.") : tr("%n servers known.", nullptr, count));
    cmdForgetKnown->setEnabled(count > 0);
}
