#pragma once

#include "support/file_identity.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// The files that a split run makes of one output. mkvmerge names them: "Film.mkv" becomes "Film-001.mkv" and so on,
/// and where the name holds "%d" or the like, the number takes its place.

/// Why no video can be split into that folder, in words: with "%d" or the like in its path mkvmerge would write each
/// piece to a folder of its own. Empty: it can.
QString Why_Not_Split_Into(const QString& folder);

/// Paths of all that stands beside `output` under the name of one of its pieces, in the order of their numbers; links
/// that lead nowhere included.
QStringList Pieces_Beside(const QString& output);

/// Tells which pieces a run of mkvmerge has written from those that were there before it.
class Piece_Watch
{
  public:
    /// Looks at what stands there before the run.
    explicit Piece_Watch(const QString& output);

    /// The pieces that are new or were written to since.
    QStringList Written() const;

    /// Those that stood there before.
    const QStringList& Before() const { return before_; }

  private:
    QString output_;
    QStringList before_;
    QHash<QString, File_Identity> states_;
};
