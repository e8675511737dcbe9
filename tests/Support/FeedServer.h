#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QObject>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>

// A web server on 127.0.0.1 that gives every request the same answer, for code that fetches
// something over HTTP: an update feed, as a release would publish it.
class FeedServer {
public:
    FeedServer()
    {
        server_.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
            while (QTcpSocket* socket = server_.nextPendingConnection())
                serve(socket);
        });
    }

    // The address of the feed.
    QString address() const { return QStringLiteral("http://127.0.0.1:%1/appcast.xml").arg(server_.serverPort()); }

    void answer(QByteArray body, int status = 200)
    {
        body_ = std::move(body);
        status_ = status;
    }

    int requests() const { return requests_; }

private:
    void serve(QTcpSocket* socket)
    {
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
            request_ += socket->readAll();
            if (!request_.contains("\r\n\r\n"))
                return;
            request_.clear();
            ++requests_;
            const QByteArray reason = status_ == 200 ? "OK" : "Error";
            socket->write("HTTP/1.1 " + QByteArray::number(status_) + " " + reason +
                          "\r\nContent-Type: application/rss+xml\r\nContent-Length: " +
                          QByteArray::number(body_.size()) + "\r\nConnection: close\r\n\r\n" + body_);
            socket->disconnectFromHost();
        });
    }

    QTcpServer server_;
    QByteArray request_;
    QByteArray body_;
    int status_ = 200;
    int requests_ = 0;
};
