// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFile>
#include <QFileInfo>

#include <sys/inotify.h>
#include <unistd.h>

// Counts the times a file is replaced whole (written beside it, then
// renamed onto it, as QSaveFile and QSettings do), from the kernel's
// notifications, so a test sees every write however fast they come.
class FileWrites {
public:
    explicit FileWrites(const QString& path)
        : m_name(QFile::encodeName(QFileInfo(path).fileName()))
        , m_fd(inotify_init1(IN_NONBLOCK))
    {
        if (m_fd >= 0)
            inotify_add_watch(m_fd, QFile::encodeName(QFileInfo(path).absolutePath()).constData(), IN_MOVED_TO);
    }
    ~FileWrites()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    FileWrites(const FileWrites&) = delete;
    FileWrites& operator=(const FileWrites&) = delete;

    bool isWatching() const { return m_fd >= 0; }

    // The replacements since the last call.
    int take()
    {
        int count = 0;
        alignas(inotify_event) char buffer[16384];
        for (;;) {
            const ssize_t size = ::read(m_fd, buffer, sizeof buffer);
            if (size <= 0)
                return count;
            for (ssize_t at = 0; at < size;) {
                const auto* event = reinterpret_cast<const inotify_event*>(buffer + at);
                if (event->len > 0 && m_name == event->name)
                    ++count;
                at += ssize_t(sizeof(inotify_event) + event->len);
            }
        }
    }

private:
    QByteArray m_name;
    int m_fd = -1;
};
