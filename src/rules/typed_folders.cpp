#include "rules/typed_folders.h"

#include "rules/folder_table.h"
#include "rules/folders.h"
#include "rules/option_rules.h"
#include "rules/recent_folders.h"
#include "support/paths.h"

#include <QDir>
#include <QDirIterator>
#include <QUrl>
#include <algorithm>

using namespace Qt::StringLiterals;

static QString Unquoted(const QString& text)
{
    QString plain = text.trimmed();
    for (const QChar quote : {u'"', u'\''})
        if (plain.size() > 1 && plain.startsWith(quote) && plain.endsWith(quote))
            return plain.sliced(1, plain.size() - 2);
    if (plain.startsWith("file:"_L1, Qt::CaseInsensitive)) {
        QUrl url(plain);
        if (url.host() == "localhost"_L1)
            url.setHost({});
        if (QString path = url.toLocalFile(); !path.isEmpty())
            return QDir::toNativeSeparators(path);
    }
    return QDir::toNativeSeparators(plain);
}

/// As a shell shows a name that holds blanks: each backslash stands for the letter behind it. Not so where it is the
/// separator.
static QString Without_Backslashes(const QString& text)
{
    if (Path_Separator == u'\\')
        return text;
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' && i + 1 < text.size())
            ++i;
        plain += text[i];
    }
    return plain;
}

static QString From_Root(const QString& text, const QString& base)
{
    if (text.isEmpty() || Is_Absolute_Path(text))
        return text;
    const QString home = QDir::toNativeSeparators(QDir::homePath());
    if (text == "~"_L1 || text.startsWith(u"~"_s + Path_Separator))
        return home + text.sliced(1);
    const QString from = With_Separator(base.isEmpty() ? home : base);
    // One that begins with a separator goes out from the drive.
    const QString whole = (text.startsWith(Path_Separator) ? from.first(from.indexOf(Path_Separator)) : from) + text;
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(whole));
    return text.endsWith(Path_Separator) ? With_Separator(path) : path;
}

QString Path_Of_Typing(const QString& text, const QString& base)
{
    const QString plain = Unquoted(text);
    for (const QString& reading : {QDir::toNativeSeparators(text), plain, Without_Backslashes(plain)})
        if (QString path = From_Root(reading, base); !Folder_Of(path).isEmpty())
            return path;
    return From_Root(plain, base);
}

QString Folder_Of_Typing(const QString& text, const QString& base)
{
    return With_Separator(Folder_Of(Path_Of_Typing(text, base)));
}

/// What stands in the last folder of the path and begins like what is behind that folder.
static QStringList Beginning_So(const QString& path, QDir::Filters filters)
{
    const qsizetype end = path.lastIndexOf(Path_Separator) + 1;
    const QStringView begin = QStringView(path).sliced(end);
    QStringList found;
    QDirIterator entries(path.first(end), filters | QDir::Hidden | QDir::NoDotAndDotDot);
    while (end > 0 && entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        if (name.startsWith(begin, Qt::CaseInsensitive) && (!name.startsWith(u'.') || begin.startsWith(u'.')))
            found += path.first(end) + name;
    }
    return found;
}

QStringList Offers_For_Typing(const QString& text, const QString& base)
{
    constexpr qsizetype most = 100;
    const QString path = Path_Of_Typing(text, base);
    QStringList offers = Beginning_So(path, QDir::Dirs);
    offers.removeAll(path); // it is whole already
    offers.sort(Qt::CaseInsensitive);
    offers.resize(std::min(offers.size(), most));
    for (QString& offer : offers)
        offer = With_Separator(offer);
    return offers;
}

QString Fault_Of_Typing(const QString& text, const QString& base)
{
    const QString path = Path_Of_Typing(text, base);
    const bool possible =
        path.isEmpty() || !Folder_Of(path).isEmpty() || !Beginning_So(path, QDir::AllEntries).isEmpty();
    return possible ? QString() : No_Such_Folder;
}

namespace {
/// The records of a box.
struct Box_Records
{
    QString& Path;
    Label& Shown;
    Label& Fault;
    QString Not_Set;     ///< what Fault says at rest
    Label* Empty;        ///< the mark; null: the box has none
    QStringList* Recent; ///< null: the box has no list
};
} // namespace

static Box_Records Records_Of(Program& program, Folder_Box box)
{
    const Main_Form fresh;
    const auto records = [&](const auto& folder, Label* empty, QStringList* recent) {
        return Box_Records{program.Options.*folder.Path,
                           program.Form.*folder.Shown,
                           program.Form.*folder.Fault,
                           (fresh.*folder.Fault).Caption,
                           empty,
                           recent};
    };
    if (box == Folder_Box::Videos || box == Folder_Box::Target) {
        const Main_Folder& folder = box == Folder_Box::Videos ? Videos_Folder() : Target_Folder();
        return records(folder, nullptr, &(program.Settings.*folder.Recent));
    }
    const Companion_Folder& folder = Companion_Folder_Of(box);
    return records(folder, &(program.Form.*folder.Empty), nullptr);
}

const QString& Path_In_Box(const Program& program, Folder_Box box)
{
    return program.Options.*(box == Folder_Box::Videos   ? Videos_Folder().Path
                             : box == Folder_Box::Target ? Target_Folder().Path
                                                         : Companion_Folder_Of(box).Path);
}

void Look_At_Typing(Program& program, Folder_Box box, const QString& text)
{
    const Box_Records records = Records_Of(program, box);
    const QString folder = Folder_Of_Typing(text, records.Path);
    const bool same = !folder.isEmpty() && Same_Folder(folder, program.Options.Path_Videos);
    records.Fault.Caption = box == Folder_Box::Target && same ? Same_Folder_Fault : Fault_Of_Typing(text, records.Path);
    records.Fault.Visible = true;
}

/// The folder that a text means is chosen; False, with nothing changed, if it means none.
static bool Choose_Typed(Program& program, Folder_Box box, const QString& text)
{
    const QString folder = Folder_Of_Typing(text, Path_In_Box(program, box));
    if (folder.isEmpty())
        return false;
    if (folder == Path_In_Box(program, box))
        Give_Up_Typing(program, box); // it stands there already
    else
        Choose_Folder(program, box, folder);
    return true;
}

/// No folder is set any more; `text` stays on show, with `fault` beside it.
static void Unset(Program& program, Folder_Box box, const QString& text, const QString& fault)
{
    const Box_Records records = Records_Of(program, box);
    if (records.Recent && !records.Path.isEmpty()) {
        Remove_Recent_Folder(*records.Recent, records.Path);
        Insert_Recent_Folder(*records.Recent, records.Path);
    }
    records.Path.clear();
    Forget_Last_Run(program.Form);
    records.Shown.Caption = text;
    records.Fault.Caption = fault;
    records.Fault.Visible = true;
    if (records.Empty)
        records.Empty->Visible = false;
    else
        Follow_Folders(program);
    Tell_Same_Folder(program);
}

bool Enter_Typing(Program& program, Folder_Box box, const QString& text)
{
    if (program.Run.Press_In_Work)
        return false;
    if (!text.trimmed().isEmpty() && !Choose_Typed(program, box, text)) {
        const Box_Records records = Records_Of(program, box);
        records.Fault.Caption = No_Such_Folder;
        records.Fault.Visible = true;
        return false;
    }
    if (text.trimmed().isEmpty())
        Leave_Typing(program, box, text);
    Default_Run(program);
    return true;
}

void Leave_Typing(Program& program, Folder_Box box, const QString& text)
{
    if (program.Run.Press_In_Work)
        return;
    const QString plain = text.trimmed();
    if (plain.isEmpty())
        Unset(program, box, {}, Records_Of(program, box).Not_Set);
    else if (!Choose_Typed(program, box, text))
        Unset(program, box, plain, No_Such_Folder);
}

void Give_Up_Typing(Program& program, Folder_Box box)
{
    const Box_Records records = Records_Of(program, box);
    records.Shown.Caption = records.Path;
    records.Fault.Caption = records.Path.isEmpty() ? records.Not_Set : QString();
    Tell_Same_Folder(program);
}
