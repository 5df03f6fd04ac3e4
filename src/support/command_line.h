#pragma once

#include "support/string_builder.h"

#include <QString>
#include <QStringList>

/// The command line of one child: its text, every blank as the system words it, and the list of arguments that the
/// child receives. Both grow together, option by option, so that a value stays exactly one argument whatever it
/// contains: a hostile title or file name can't smuggle an option in.
///
/// The argument of a value is its text without one outer pair of quotes, with every backslash-quote pair and every
/// three quotes in a row made one quote. The argument of a path is the path itself.
///
/// mkvmerge takes some arguments for its own wherever they stand: one that begins with "@" is a file of options, and
/// "-r" or "--gui-mode" are obeyed even where a value belongs. And a system passes arguments of a limited length only.
/// A value that would be such an argument is left out together with its option, and Refusals tells why.
class Command_Line
{
  public:
    /// Text that is one argument of its own: Add(u" --ui-language", u"--ui-language").
    void Add(const QString& text, const QString& argument);
    /// Options without a value: " --no-audio", or several in one text, " --chapter-language eng --chapters"; blanks
    /// separate the arguments. Only for literals of our own.
    void Add_Options(const QString& text);
    /// An option and its value: text is `option` followed by `value`; `option` ends in the blanks that separate them
    /// and may hold several words, one argument each. The value is one argument.
    void Add_Option(const QString& option, const QString& value);
    /// The same for a value that comes from a file as it is: `argument` is what the child receives, to the letter,
    /// `text` how the command words it.
    void Add_Literal(const QString& option, const QString& text, const QString& argument);
    /// `option` followed by the quoted path, whose argument is the path as a tool is given it. `option` as for
    /// Add_Option.
    void Add_Path(const QString& option, const QString& path);
    /// True if that path is one of the arguments.
    bool Holds_Path(const QString& path) const;
    /// " ( " + quoted path + " )": the source or a companion. The argument is the path itself.
    void Add_Input(const QString& path);

    QString Text() const { return text_.ToString(); }

    const QStringList& Arguments() const { return arguments_; }

    /// A line for Log_Faults for each option that was left out, in order. Whoever assembles a command writes them.
    const QStringList& Refusals() const { return refusals_; }

    /// The argument that a value's text becomes.
    static QString Argument_Of(const QString& value);
    /// True for a value that mkvmerge would not take for one or can't be given: its argument begins with "@", or is a
    /// dash and a letter, or two dashes and lower-case words joined by dashes, or is longer than the system passes on.
    static bool Is_Refused(const QString& value);
    static QString Refused_Value(const QString& option, const QString& value);

  private:
    clsStringBuilder text_;
    QStringList arguments_;
    QStringList refusals_;
};

/// The arguments in POSIX shell quoting, joined by blanks: what --dry-run prints; on Windows as the command prompt
/// takes them. Holds no control character but line feeds: a hostile title can't steer the terminal.
QString Shell_Quoted(const QStringList& arguments);
