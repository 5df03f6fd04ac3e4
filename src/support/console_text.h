#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

/// A child's bytes as the program's text, chunk by chunk: UTF-8 (invalid bytes become U+FFFD), and a line feed that no
/// carriage return precedes becomes CR LF; a lone carriage return stays. A character or a line end that is cut by a
/// chunk's end survives. One instance for each run of a child.
class Console_Text
{
  public:
    /// The text of the next bytes. Valid until the next call.
    const QString& Decode(QByteArrayView bytes);

    /// Takes note of bytes whose text nobody wants, without the cost of making it.
    void Skip(QByteArrayView bytes);

  private:
    QStringDecoder decoder_{QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom};
    QString decoded_;
    QString text_;
    bool after_return_ = false;
};
