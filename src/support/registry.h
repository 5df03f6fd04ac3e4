#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

/// The small layer over the system's registry. The program only reads: it looks for where MKVToolNix is installed.
/// Nothing in here raises an error: each operation returns false and leaves its reason in the state that it is given.

/// What went wrong last. Every operation clears it first.
struct Registry_State
{
    std::uint32_t Reg_Error = 0;
    QString Reg_Error_Text;
    std::int32_t Reg_Error_Extra = 0;
};

/// The predefined roots.
inline constexpr std::uint32_t Reg_First_Root = 0x80000000;
inline constexpr std::uint32_t Reg_Local_Machine = 0x80000002;
inline constexpr std::uint32_t Reg_Last_Root = 0x80000006;

/// Reads a text value of a key below the local-machine root; names are compared without regard to case, the default
/// value's name is empty. Name and data end at their first zero.
bool Reg_Read_Value(Registry_State& state, const QString& key, const QString& wanted_name, QString& value);
/// True if the key can be opened. A bad root and a bad key both leave 80040001.
bool Reg_Key_Exists(Registry_State& state, std::uint32_t root, const QString& key);
bool Reg_Root_Valid(std::uint32_t root);
/// The trimmed key is not empty and shorter than 257 characters.
bool Reg_Key_Valid(const QString& key);
void Reg_Clear_Error(Registry_State& state);
/// The text of an error code; "Undefined Error." for any other.
QString Reg_Error_Message(std::uint32_t code);

/// One value of a key as the platform lists it.
struct Registry_Value
{
    QString Name;
    std::uint32_t Type = 0; ///< 1: text
    QString Data;           ///< empty unless it is text
};

inline constexpr std::uint32_t Reg_Text_Type = 1;

/// The text of that name among a key's values; false if there is none.
bool Find_Registry_Value(const std::vector<Registry_Value>& values, const QString& wanted_name, QString& value);

/// The platform's half: all values of a key, or nothing if it can't be opened. Where there is no registry no key
/// exists.
std::optional<std::vector<Registry_Value>> List_Registry_Values(std::uint32_t root, const QString& key);
