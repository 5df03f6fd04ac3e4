#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <optional>
#include <vector>

/// How many characters of a value reach the program.
inline constexpr qsizetype Longest_Value = 2048;

/// The text of a settings file in memory, with the rules that such files are read and written by:
///
/// - sections and keys are told apart without regard to case, blanks around their names don't count, and of two with
///   one name the first is the one;
/// - a value is trimmed, loses one outer pair of quotes, and is cut at 2048 characters; a key with nothing behind its
///   "=" has the empty value, which isn't the same as no key;
/// - a change touches the text behind one "=" only: what the program doesn't know (keys, sections, comments, lines that
///   are none of these) stays as it is and where it is;
/// - UTF-8, with or without a byte order mark; lines end in LF or CR LF when read and in the platform's line end when
///   written.
///
/// Anything at all is taken, binary data too. Time and memory grow with the size of the text.
class Ini_Document
{
  public:
    Ini_Document() = default;
    explicit Ini_Document(QByteArray content);

    /// Nothing if the section or the key isn't there.
    std::optional<QString> Value(const QString& section, const QString& key) const;

    /// Sets a key's value. A new key goes behind the last one of its section, a new section to the end. Line breaks in
    /// `value` become blanks; what follows a character of code 0 is cut off.
    void Set_Value(const QString& section, const QString& key, const QString& value);

    /// Takes out a section's headline and keys; comments in it stay. Set later, the section comes back in its place.
    void Delete_Section(const QString& section);

    /// The whole text as it would be saved, its lines ended by LF.
    QByteArray Content() const;

  private:
    /// Where one key's value stands in content_, or which of Added it is; New_Value wins over both.
    struct Key
    {
        qsizetype Value_Begin = 0;
        qsizetype Line_End = 0; ///< without the line end
        std::optional<QString> New_Value;
        bool Is_Added = false;
    };

    struct Section
    {
        qsizetype Header = 0;
        qsizetype Body = 0;
        qsizetype End = 0;
        qsizetype Insert_At = 0; ///< behind the last key
        bool Is_Indexed = false;
        bool Is_Deleted = false;
        QByteArray New_Header;         ///< of a section that content_ doesn't hold
        QHash<QByteArray, Key> Keys;   ///< by lower-cased name
        std::vector<QByteArray> Added; ///< names of new keys as they were given, in order
    };

    /// A piece of content_ and what stands in its place.
    struct Edit
    {
        qsizetype Begin;
        qsizetype End;
        QByteArray Text;
    };

    Section* Find(const QString& section) const;
    void Index_Keys(Section& section) const;
    void Collect_Edits(const Section& section, std::vector<Edit>& edits) const;
    qsizetype Line_End_From(qsizetype begin) const;

    QByteArray content_;
    bool has_mark_ = false; ///< a byte order mark, which isn't part of content_
    mutable std::vector<Section> sections_;
    QHash<QByteArray, std::size_t> by_name_; ///< the first section of each lower-cased name
};

/// The text behind a "=" as the program gets it: trimmed, one outer pair of quotes taken off, cut.
QString Ini_Value_As_Read(const QString& text);

/// The settings file at `path`; a missing file is an empty document. The run-time error of the file operation for what
/// can't be read or is no plain file.
Ini_Document Load_Ini_File(const QString& path);

/// Replaces the file whole or leaves it as it was; a run-time error that names it if it can't be written.
void Save_Ini_File(const QString& path, const Ini_Document& document);
