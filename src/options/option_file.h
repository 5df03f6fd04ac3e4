#pragma once

#include "options/language_table.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

class clsStringBuilder;

/// Option files: the small text file beside an external audio or subtitle file that gives its track settings. The media
/// file's whole name followed by ".opt"; lines "Key=value" ended by CR LF; "#" at the start of a line is a comment.
/// docs/formats/option-files.md has the grammar. A run and the editor read it in two ways that differ on purpose.

/// Places of the five values in Option_Values, which is also the order in which they are written.
enum Option_Slot : std::uint8_t
{
    Title_Slot,
    Language_Slot,
    Default_Slot,
    Forced_Slot,
    Delay_Slot
};

/// The five values of one option file; empty: not set.
using Option_Values = std::array<QString, 5>;

/// The run's reader, for the media file at `media_path`. True if the option file is there and every line of it is a
/// comment, blank or holds a "="; else false with all values empty. Values come untrimmed and unchecked, the language
/// as its three-letter code (empty if unknown).
///
/// Error 9, naming the option file, for a language line with nothing behind the "="; a file error if it can't be read.
bool Read_Option_File(const LanguageTable& table, const QString& media_path, Option_Values& values);

/// The bits of OptionRecord::Flags.
enum Option_Flag : std::uint8_t
{
    Title_Flag = 1,
    Language_Flag = 2,
    Default_Flag = 4,
    Forced_Flag = 8,
    Delay_Flag = 16,
    Stretch_Flag = 32,
    Comments_Flag = 64
};

/// The editor's form of one option file. Texts are trimmed, the language is as written.
struct OptionRecord
{
    QString Title;
    QString Language;
    QString Default;
    QString Forced;
    QString Delay;
    QString Stretch;      ///< read and shown, never written
    QStringList Comments; ///< comment lines without their "#", trimmed
    std::int32_t Flags = 0;
};

/// The editor's reader, for the option file itself. False if there is none. Adds to `record`: a key that the file
/// hasn't keeps the value it had, comments start afresh. Lines that mean nothing are passed over.
///
/// Error 9, naming the file, for a line that is one of the keys alone, without "=".
bool Load_Option_Record(const QString& option_path, OptionRecord& record);
/// The record's five values that are written.
Option_Values Values_Of(const OptionRecord& record);
/// Sets the mask's bits in Flags, or clears them.
void Set_Option_Flag(OptionRecord& record, std::int32_t mask, bool present);
void Clear_Option_Record(OptionRecord& record);

/// What a writer did.
enum class Option_Write_Status
{
    Written = -1,
    Nothing_To_Write = 0, ///< all values empty and no file there
    Recycled = 1,         ///< all values empty: the file went to the trash
    Left_Alone = 2,       ///< all values empty: a merge changes nothing
    Not_Recycled = 3      ///< all values empty, but the trash didn't take the file: it is as it was
};

/// Writes the five values, line breaks in them as blanks; the file is replaced whole, comments and other keys go. All
/// values empty: an existing file goes to the trash; if it can't, it stays and `faults` hears of it.
Option_Write_Status Write_Option_File(const QString& option_path, const Option_Values& values,
                                      clsStringBuilder& faults);
/// Writes the values that aren't empty over those of the existing file, which keeps its other four keys; comments and
/// other keys go.
Option_Write_Status Merge_Option_File(const QString& option_path, const Option_Values& values);
