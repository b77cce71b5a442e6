// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/sourcestatus.h"

#include "query/masteraddress.h"
#include "query/serverlistreader.h"

#include <QUrl>

namespace {

// A failed source in the few words the status line has room for: the full
// error is in the tooltip and the box.
QString reasonOf(const SourceReport& report, const QString& shortName)
{
    if (report.queryError && report.queryError->kind == QueryError::Kind::MasterNotFound)
        return SourceStatus::tr("%1 not found").arg(shortName);
    if (report.timedOut)
        return SourceStatus::tr("%1 did not answer").arg(shortName);
    return SourceStatus::tr("%1: %2").arg(shortName, report.error);
}

} // namespace

QString SourceStatus::names(QStringList names, const QString& separator)
{
    names.removeDuplicates();
    if (names.size() <= NamesShown)
        return names.join(separator);
    const int more = int(names.size()) - NamesShown;
    return tr("%1 and %n more", nullptr, more).arg(names.mid(0, NamesShown).join(separator));
}

SourceStatus SourceStatus::of(const QList<SourceReport>& reports, LeftOut leftOut)
{
    QStringList notes;
    if (leftOut.masters > 0)
        notes.append(tr("%n more master servers left out: at most %1 are asked.", nullptr, leftOut.masters)
                         .arg(MasterList::Max));
    if (leftOut.lists > 0)
        notes.append(tr("%n more server lists left out: at most %1 are fetched.", nullptr, leftOut.lists)
                         .arg(ServerListReader::UrlList::Max));
    QStringList lines = notes;
    QStringList failed;
    QStringList awaited;
    QStringList reasons;
    for (const SourceReport& report : reports) {
        // The status line names a list by its host; the tooltip in full.
        const QString shortName = report.kind == SourceReport::Kind::List ? QUrl(report.name).host() : report.name;
        if (!report.settled) {
            awaited.append(shortName);
            lines.append(tr("%1: no answer yet").arg(report.name));
            continue;
        }
        if (report.failed()) {
            failed.append(shortName);
            lines.append(tr("%1: %2").arg(report.name, report.error));
            reasons.append(reasonOf(report, shortName));
            continue;
        }
        QString line = tr("%1: %n servers", nullptr, report.addresses).arg(report.name);
        if (report.skipped > 0)
            line += QLatin1Char(' ') + tr("(%n entries skipped)", nullptr, report.skipped);
        if (report.truncated)
            line += QLatin1Char(' ') + tr("(list cut at %1)").arg(ServerListReader::MaxAddresses);
        lines.append(line);
    }
    return SourceStatus{lines.join(QLatin1Char('\n')), notes.join(QLatin1Char('\n')), names(failed), names(awaited),
                        names(reasons, QStringLiteral("; "))};
}

QString SourceStatus::queryingText(int count) const
{
    const QString text = tr("Querying %1 Servers...").arg(count);
    const QString more = !awaited.isEmpty()  ? tr("Waiting for %1").arg(awaited)
                         : !failed.isEmpty() ? tr("No list from %1").arg(failed)
                                             : leftOut.section(QLatin1Char('\n'), 0, 0);
    return more.isEmpty() ? text : text + QLatin1Char('\n') + more;
}

QString SourceStatus::timedOutLine() const
{
    const QString where = tr("Options, \"Servers\" tab, adds sources");
    return reasons.isEmpty() ? where : reasons + QStringLiteral(" \u2013 ") + where;
}

QString SourceStatus::timedOutText() const
{
    QString text = tr("Master Servers Timed Out");
    QStringList lines = summary.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.size() > LinesInBox) {
        const int more = int(lines.size()) - LinesInBox + 1;
        lines.resize(LinesInBox - 1);
        lines.append(tr("... and %n more (the status line's tooltip lists them all)", nullptr, more));
    }
    if (!lines.isEmpty())
        text += QStringLiteral("\n\n") + lines.join(QLatin1Char('\n'));
    return text + QStringLiteral("\n\n") +
           tr("Check the network connection, or add a master server or a server list that works in Options, on the "
              "\"Servers\" tab.");
}
