#include "run/split_pieces.h"

#include "support/disk_steps.h"
#include "support/paths.h"

#include <QRegularExpression>
#include <map>

using namespace Qt::StringLiterals;

/// Matches the names of an output's pieces; the first group is the number.
static QRegularExpression Piece_Name(const QString& output_name)
{
    static const QRegularExpression number_mark(u"%\\d*d"_s);
    const QRegularExpressionMatch mark = number_mark.match(output_name);
    const qsizetype dot = output_name.lastIndexOf(u'.');
    const QString ahead = mark.hasMatch() ? output_name.left(mark.capturedStart()) : output_name.left(dot) + u'-';
    const QString behind = output_name.mid(mark.hasMatch() ? mark.capturedEnd() : dot);
    return QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(ahead) + u"(\\d+)"_s +
                                                                  QRegularExpression::escape(behind)),
                              QRegularExpression::CaseInsensitiveOption);
}

QString Why_Not_Split_Into(const QString& folder)
{
    static const QRegularExpression number(u"%[0-9]*d"_s);
    const QString mark = number.match(folder).captured();
    if (mark.isEmpty())
        return {};
    return u"the target folder's path holds \"%1\", which mkvmerge replaces by the number of a piece: "
           u"split into another folder"_s.arg(mark);
}

QStringList Pieces_Beside(const QString& output)
{
    const QString folder = output.left(output.lastIndexOf(Path_Separator) + 1);
    const QRegularExpression piece = Piece_Name(File_Name_Of(output));
    std::multimap<qulonglong, QString> pieces;
    int error = 0;
    for (const Folder_Entry& entry : List_Entries(folder, error))
        if (const QRegularExpressionMatch match = piece.match(entry.Name); match.hasMatch())
            pieces.emplace(match.captured(1).toULongLong(), folder + entry.Name);
    QStringList paths;
    for (const auto& [number, path] : pieces)
        paths += path;
    return paths;
}

Piece_Watch::Piece_Watch(const QString& output) : output_(output), before_(Pieces_Beside(output))
{
    for (const QString& piece : before_)
        if (const auto state = Identity_Of(piece))
            states_.insert(piece, *state);
}

QStringList Piece_Watch::Written() const
{
    QStringList written;
    for (const QString& piece : Pieces_Beside(output_)) {
        const auto state = Identity_Of(piece);
        const auto old = states_.constFind(piece);
        if (state && (old == states_.constEnd() || !old->Is_Unchanged(*state)))
            written += piece;
    }
    return written;
}
