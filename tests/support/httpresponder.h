#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <memory>

// A small HTTP/1.1 server on 127.0.0.1 for tests: each path answers with a
// status, a body and, when asked, after a delay. Unknown paths get 404.
// It reads the request line only, which is all a GET from Qt needs.
class HttpResponder final : public QObject {
public:
    struct Reply {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "application/json";
        int delayMs = 0;
        // Above 0: the body goes out in pieces this large, 5 ms apart, as
        // over a slow line.
        int pieceBytes = 0;
    };

    HttpResponder()
    {
        if (!m_server.listen(QHostAddress::LocalHost, 0))
            qFatal("the HTTP responder could not listen: %s", qPrintable(m_server.errorString()));
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { serve(socket); });
        });
    }

    void set(const QString& path, const Reply& reply) { m_replies.insert(path, reply); }
    QUrl url(const QString& path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
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
            QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) +
                              (reply.status == 200 ? " OK" : " Not Found") + "\r\nContent-Type: " + reply.contentType +
                              "\r\nContent-Length: " + QByteArray::number(reply.body.size()) +
                              "\r\nConnection: close\r\n\r\n";
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

    QTcpServer m_server;
    QHash<QString, Reply> m_replies;
    QHash<QTcpSocket*, QByteArray> m_buffer;
    QByteArray m_lastRequest;
    int m_requests = 0;
};
