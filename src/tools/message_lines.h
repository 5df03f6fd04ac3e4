#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Picks out of mkvmerge's output, as it comes, what the result of a file is explained with, whatever the log keeps of
/// it. Lines end in LF or CR; progress counts for nothing.
class Message_Lines
{
  public:
    /// The next bytes, cut anywhere.
    void Take(QByteArrayView bytes);

    /// The output is at its end.
    void End() { Close_Line(); }

    QString First_Error;  ///< the first line "Error: ...", without that word
    QStringList Warnings; ///< the first hundred lines "Warning: ...", without that word
    QString Last_Line;    ///< the last line that isn't empty

  private:
    void Close_Line();

    QByteArray line_; ///< the start of the line that came last, which may go on
};
