#pragma once

#include "filters.h"
#include "records.h"

#include <QSortFilterProxyModel>

#include <functional>
#include <vector>

// Whether each server passes the filters, worked out once per server and
// kept until the filters change or the server answers again; the visible
// server list and the visible player list both ask it, so a player is shown
// exactly when its server is.
class ServerVisibility final {
public:
    explicit ServerVisibility(const ServerStore& store);

    void setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn);
    // The server answered again: test it anew when next asked.
    void forget(int server);
    bool isVisible(int server) const;

private:
    const ServerStore& m_store;
    QList<Filters::VariableFilter> m_filters;
    Filters::BuiltIn m_builtIn;
    mutable std::vector<qint8> m_known; // -1 not yet tested, else 0 or 1
};

// A visible list: the rows of the hidden full list that the predicate
// accepts. New rows are tested as they are inserted.
class VisibleList final : public QSortFilterProxyModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VisibleList)

public:
    using Accept = std::function<bool(int sourceRow)>;

    explicit VisibleList(Accept accept, QObject* parent = nullptr);
    // Tests every row again (after the filters changed).
    void refilter() { invalidate(); }

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    Accept m_accept;
};
