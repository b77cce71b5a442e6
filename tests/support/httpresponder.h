// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QHostAddress>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <memory>

// A small HTTP/1.1 server on 127.0.0.1 for tests: each path answers with a
// status, a body and, when asked, after a delay. Unknown paths get 404.
// It reads the request line only, which is all a GET from Qt needs. With
// Tls::On it speaks HTTPS with a certificate for localhost and 127.0.0.1
// signed by the test authority (testAuthority()).
class HttpResponder final : public QObject {
public:
    enum class Tls { Off, On };

    static QList<QSslCertificate> testAuthority()
    {
        return QSslCertificate::fromPath(QStringLiteral(Q4V_TEST_TLS_DIR "/ca.pem"));
    }

    struct Reply {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "application/json";
        int delayMs = 0;
        // Above 0: the body goes out in pieces this large, 5 ms apart, as
        // over a slow line.
        int pieceBytes = 0;
        // Extra header lines ("Location: ...\r\n"); with raw set, these
        // bytes are all that is sent (the status line included).
        QByteArray headers{};
        bool raw = false;
        // Above 0 with raw: after the bytes, `again` is sent this many times,
        // 1 ms apart (an endless header or body), as fast as it is read.
        int repeat = 0;
        QByteArray again{};
        // No Content-Length header.
        bool noLength = false;
    };

    explicit HttpResponder(Tls tls = Tls::Off)
        : m_tls(tls == Tls::On)
    {
        if (m_tls) {
            auto* server = new QSslServer(this);
            QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
            configuration.setLocalCertificateChain(
                QSslCertificate::fromPath(QStringLiteral(Q4V_TEST_TLS_DIR "/server.pem")));
            QFile key(QStringLiteral(Q4V_TEST_TLS_DIR "/server.key"));
            if (!key.open(QIODevice::ReadOnly))
                qFatal("the test key is missing");
            configuration.setPrivateKey(QSslKey(&key, QSsl::Rsa));
            server->setSslConfiguration(configuration);
            m_server = server;
        } else {
            m_server = new QTcpServer(this);
        }
        if (!m_server->listen(QHostAddress::LocalHost, 0))
            qFatal("the HTTP responder could not listen: %s", qPrintable(m_server->errorString()));
        connect(m_server, &QTcpServer::pendingConnectionAvailable, this, [this] {
            while (QTcpSocket* socket = m_server->nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
        });
    }

    void set(const QString& path, const Reply& reply) { m_replies.insert(path, reply); }
    QUrl url(const QString& path) const
    {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2%3")
                        .arg(QLatin1String(m_tls ? "https" : "http"))
                        .arg(m_server->serverPort())
                        .arg(path));
    }
    int requests() const { return m_requests; }
    QByteArray lastRequest() const { return m_lastRequest; }

private:
    void serve(QTcpSocket* socket)
    {
        m_buffer[socket] += socket->readAll();
        const QByteArray& request = m_buffer[socket];
        if (!request.contains("\r\n\r\n"))
            return;
        ++m_requests;
        m_lastRequest = request;
        const QByteArray path = request.split(' ').value(1);
        m_buffer.remove(socket);
        const Reply reply = m_replies.value(QString::fromLatin1(path), Reply{404, "not here", "text/plain", 0});
        const auto send = [socket, reply] {
            if (reply.raw) {
                socket->write(reply.body);
                if (reply.repeat <= 0) {
                    socket->disconnectFromHost();
                    return;
                }
                auto* pump = new QTimer(socket);
                auto left = std::make_shared<int>(reply.repeat);
                connect(pump, &QTimer::timeout, socket, [socket, pump, left, reply] {
                    if (socket->state() != QAbstractSocket::ConnectedState || --*left <= 0) {
                        pump->stop();
                        socket->abort();
                        return;
                    }
                    // Only while the reader keeps up: memory here stays small.
                    if (socket->bytesToWrite() < 4 * 1024 * 1024)
                        socket->write(reply.again);
                });
                pump->start(1);
                return;
            }
            const char* reason = reply.status == 200 ? " OK" : reply.status / 100 == 3 ? " Found" : " Not Found";
            QByteArray head =
                "HTTP/1.1 " + QByteArray::number(reply.status) + reason + "\r\nContent-Type: " + reply.contentType +
                (reply.noLength ? QByteArray() : "\r\nContent-Length: " + QByteArray::number(reply.body.size())) +
                "\r\n" + reply.headers + "Connection: close\r\n\r\n";
            if (reply.pieceBytes <= 0) {
                socket->write(head + reply.body);
                socket->disconnectFromHost();
                return;
            }
            socket->write(head);
            auto* pieces = new QTimer(socket);
            auto sent = std::make_shared<qsizetype>(0);
            connect(pieces, &QTimer::timeout, socket, [socket, pieces, sent, reply] {
                socket->write(reply.body.mid(*sent, reply.pieceBytes));
                *sent += reply.pieceBytes;
                if (*sent >= reply.body.size()) {
                    pieces->stop();
                    socket->disconnectFromHost();
                }
            });
            pieces->start(5);
        };
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        if (reply.delayMs > 0)
            QTimer::singleShot(reply.delayMs, socket, send);
        else
            send();
    }

    bool m_tls = false;
    QTcpServer* m_server = nullptr;
    QHash<QString, Reply> m_replies;
    QHash<QTcpSocket*, QByteArray> m_buffer;
    QByteArray m_lastRequest;
    int m_requests = 0;
};
