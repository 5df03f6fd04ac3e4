#include "forms/desktop_notice_posix.h"

#include "forms/test_window.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>

/// Stands in for the desktop's service, and keeps what it is asked to show.
class Notice_Service : public QDBusVirtualObject
{
  public:
    QDBusMessage Asked;

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        Asked = message;
        return true; // and never answers
    }

    QString introspect(const QString&) const override { return {}; }
};

TEST(Desktop_Notice, ShowsNamesAsTheyAreAndWaitsForNobody)
{
    Notice_Service service;
    QDBusServer server(u"unix:tmpdir=/tmp"_s);
    QObject::connect(&server, &QDBusServer::newConnection, &server, [&](QDBusConnection connection) {
        connection.registerVirtualObject(u"/"_s, &service, QDBusConnection::SubPath);
    });
    QWidget window;
    Show_Desktop_Notice(QDBusConnection::connectToPeer(server.address(), u"notices"_s), window, u"FINISHED"_s,
                        u"1 done\n/v/<b>Tom & Jerry</b>/"_s);
    EXPECT_TRUE(Wait_Until([&] { return service.Asked.member() == u"Notify"; }));
    EXPECT_EQ(service.Asked.arguments().mid(3, 2),
              (QVariantList{u"FINISHED"_s, u"1 done\n/v/&lt;b&gt;Tom &amp; Jerry&lt;/b&gt;/"_s}));
    QDBusConnection::disconnectFromPeer(u"notices"_s);
}
