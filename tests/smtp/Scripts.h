#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The three ways in which a message is handed over, by what the server offers.
enum class Mode { Chunking, Pipelining, Plain };

/// The points of a session at which the server speaks.
enum class Point { Greeting, Ehlo, Rset, Mail, Rcpt, Data, Final };

[[nodiscard]] QString nameOf(Mode mode);
[[nodiscard]] QString nameOf(Point point);

/// From the client's connecting to the server's reply to EHLO, which is left out when `upTo` says
/// so.
[[nodiscard]] QString opening(Mode mode, Point upTo = Point::Final);
/// From the client's connecting to its STARTTLS, which the server offers.
[[nodiscard]] QString startingTls();
/// The same, to the client's EHLO on the encrypted line.
[[nodiscard]] QString encryptedOpening();
/// The first message of a session to anna@example.net, up to the server's reply at that point,
/// which is left out. Point::Final leaves out only the last reply.
[[nodiscard]] QString message(Mode mode, Point upTo = Point::Final);
/// The points of that mode at which a message can fail.
[[nodiscard]] QList<Point> pointsOf(Mode mode);
