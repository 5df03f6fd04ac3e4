#include "run/final_name.h"

#include "support/disk_names.h"
#include "support/paths.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>

using namespace Qt::StringLiterals;

Target_Before::Target_Before(const QString& target) : folder_(With_Separator(target))
{
    int error = 0;
    for (const Folder_Entry& entry : List_Entries(folder_, error))
        if (const auto identity = Identity_Of_Name(folder_ + entry.Name))
            entries_.insert(Key_Of_Name(entry.Name), {entry.Name, *identity});
}

std::optional<File_Identity> Target_Before::At(const QString& name) const
{
    const auto found = entries_.constFind(Key_Of_Name(name));
    return found == entries_.constEnd() ? std::nullopt : std::optional(found->Identity);
}

QString Target_Before::Name_There(const QString& name) const
{
    return entries_.value(Key_Of_Name(name)).Name;
}

/// `name` as what stands ahead of its extension and the extension with its dot.
static std::pair<QString, QString> Halves(const QString& name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? std::pair(name, QString()) : std::pair(name.left(dot), name.mid(dot));
}

QStringList Target_Before::Pieces_Of(const QString& name) const
{
    const auto [base, extension] = Halves(name);
    const QRegularExpression piece(
        u"\\A%1-[0-9]{3,}%2\\z"_s.arg(QRegularExpression::escape(base), QRegularExpression::escape(extension)),
        Case_Of_Names == Qt::CaseSensitive ? QRegularExpression::NoPatternOption
                                           : QRegularExpression::CaseInsensitiveOption);
    QStringList pieces;
    for (const Entry& entry : entries_)
        if (piece.match(entry.Name).hasMatch())
            pieces += entry.Name;
    pieces.sort();
    return pieces;
}

QString Piece_Name(const QString& name, int number)
{
    const auto [base, extension] = Halves(name);
    return base + u'-' + QString::number(number).rightJustified(3, u'0') + extension;
}

QString Marked_Name(const QString& name, const QString& word, int longest)
{
    auto [base, extension] = Halves(name);
    const QString end = u" ("_s + word + u')' + extension;
    while (!base.isEmpty() && Length_On_Disk(base + end) > longest)
        base.chop(base.size() > 1 && base.back().isLowSurrogate() ? 2 : 1);
    return base + end;
}

/// What would make way for an output of that name.
static QStringList Standing(const Target_Before& before, const QString& name, bool split)
{
    if (split)
        return before.Pieces_Of(name);
    const QString there = before.Name_There(name);
    return there.isEmpty() ? QStringList() : QStringList{there};
}

Name_Choice Choose_Name(const Target_Before& before, const QString& name, bool split, Output_Exists choice,
                        const QHash<QString, QString>& taken)
{
    Name_Choice chosen{.Name = name, .Old = Standing(before, name, split), .Skip_Reason = {}};
    switch (choice) {
    case Output_Exists::Replace:
        break;
    case Output_Exists::Skip:
        if (!chosen.Old.isEmpty())
            chosen.Skip_Reason = u"The output is there already: \"%1\""_s.arg(chosen.Old.constFirst());
        break;
    case Output_Exists::Number: {
        const int longest = Longest_Name(before.Folder()) - (split ? 4 : 0);
        for (int number = 1; !chosen.Old.isEmpty() || taken.contains(Key_Of_Name(chosen.Name)); ++number) {
            chosen.Name = Marked_Name(name, QString::number(number), longest);
            chosen.Old = Standing(before, chosen.Name, split);
        }
        break;
    }
    }
    return chosen;
}

namespace {

/// Renames done one after the other, each of which can be taken back.
class Renames
{
  public:
    explicit Renames(Rename_Ways ways) : ways_(ways) {}

    /// 0, or the error.
    int Do(const QString& from, const QString& to)
    {
        const Rename_Result result = Rename_To_Free_Name(from, to, ways_);
        guarded_ = guarded_ && result.Guarded;
        if (result.Error == 0)
            done_.emplace_back(from, to);
        return result.Error;
    }

    /// Gives all files their former names. Returns those that couldn't have them, by their present paths.
    QStringList Undo()
    {
        QStringList left;
        for (; !done_.empty(); done_.pop_back())
            if (Rename_To_Free_Name(done_.back().second, done_.back().first, ways_).Error != 0)
                left += done_.back().second;
        return left;
    }

    bool Guarded() const { return guarded_; }

  private:
    Rename_Ways ways_;
    std::vector<std::pair<QString, QString>> done_;
    bool guarded_ = true;
};

} // namespace

/// Takes an old file out of the way, to the first free name of "(old 1)" and so on.
static int Move_Old_Away(Renames& renames, const QString& folder, const QString& name, QString& moved_to)
{
    constexpr int most = 10'000;
    int error = EEXIST;
    for (int number = 1; error == EEXIST && number <= most; ++number) {
        moved_to = folder + Marked_Name(name, u"old "_s + QString::number(number), Longest_Name(folder));
        error = renames.Do(folder + name, moved_to);
    }
    return error;
}

static bool Is_File_Or_Link(const QString& path)
{
    const QFileInfo info(path);
    return info.isSymLink() || info.isFile();
}

static QString Why_Not_Named(const QString& name, int error)
{
    if (error == EEXIST)
        return u"\"%1\" was made meanwhile by somebody else; it was left alone"_s.arg(name);
    return u"The finished output couldn't be named \"%1\": %2"_s.arg(name, System_Words(error));
}

static QString Make_Way_And_Name(const Target_Before& before, const Name_Choice& choice, const QStringList& made,
                                 const QStringList& names, Renames& renames, QStringList& old)
{
    const QString& folder = before.Folder();
    for (const QString& name : choice.Old) {
        const auto there = Identity_Of_Name(folder + name);
        if (!there)
            continue; // somebody took it away: then the name is free
        if (!there->Is_Unchanged(before.At(name).value_or(File_Identity())))
            return u"\"%1\" was changed meanwhile by somebody else; it was left alone"_s.arg(name);
        if (!Is_File_Or_Link(folder + name))
            return u"\"%1\" is no file; it was left alone"_s.arg(name);
        QString moved_to;
        if (const int error = Move_Old_Away(renames, folder, name, moved_to); error != 0)
            return u"The old \"%1\" couldn't be renamed: %2"_s.arg(name, System_Words(error));
        old += moved_to;
    }
    for (qsizetype place = 0; place < made.size(); ++place)
        if (const int error = renames.Do(made[place], folder + names[place]); error != 0)
            return Why_Not_Named(names[place], error);
    return {};
}

Name_Result Give_Names(const Target_Before& before, const Name_Choice& choice, const QStringList& made,
                       const QStringList& names, Rename_Ways ways)
{
    Renames renames(ways);
    Name_Result result;
    result.Failure = Make_Way_And_Name(before, choice, made, names, renames, result.Old);
    if (!result.Failure.isEmpty()) {
        result.Old = {};
        if (const QStringList left = renames.Undo(); !left.isEmpty())
            result.Failure += u"; and these keep the names that they were given for a moment: "_s + left.join(u", "_s);
    } else if (!renames.Guarded()) {
        result.Warnings +=
            u"The target's file system can't refuse to overwrite: the name was looked at and then given"_s;
    }
    return result;
}
