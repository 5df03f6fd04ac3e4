#include "support/registry.h"

#include "support/text.h"

#include <iterator>

using namespace Qt::StringLiterals;

static constexpr std::uint32_t First_Error = 0x80040001;

/// The texts of the codes from First_Error on.
static constexpr const char16_t* Error_Texts[] = {
    u"Invalid Base Key Value.",
    u"Invalid Data Type.",
    u"Key Not Found.",
    u"Value Not Found.",
    u"Value Data Type Mismatch.",
    u"Registry Entry Locked.",
    u"The Specified Key Is Invalid.",
    u"Unable To Open Key.",
    u"Unable To Read Key.",
    u"Unable To Create Key.",
    u"Unable To Read Value.",
    u"Unable To Update Value.",
    u"Unable To Create Value.",
    u"Unable To Delete Key.",
    u"Unable To Delete Value.",
};

bool Find_Registry_Value(const std::vector<Registry_Value>& values, const QString& wanted_name, QString& value)
{
    for (const Registry_Value& found : values) {
        if (Cut_At_Nul(found.Name).toLower() != wanted_name.toLower())
            continue;
        value = found.Type == Reg_Text_Type ? Cut_At_Nul(found.Data) : QString();
        return true;
    }
    return false;
}

bool Reg_Read_Value(Registry_State& state, const QString& key, const QString& wanted_name, QString& value)
{
    Reg_Clear_Error(state);
    const auto values = List_Registry_Values(Reg_Local_Machine, key);
    return values && Find_Registry_Value(*values, wanted_name, value);
}

bool Reg_Key_Exists(Registry_State& state, std::uint32_t root, const QString& key)
{
    Reg_Clear_Error(state);
    // Deliberate: a bad key has the number and the words of a bad root.
    if (!Reg_Root_Valid(root) || !Reg_Key_Valid(key)) {
        state.Reg_Error = First_Error;
        state.Reg_Error_Text = Reg_Error_Message(First_Error);
        return false;
    }
    return List_Registry_Values(root, key).has_value();
}

bool Reg_Root_Valid(std::uint32_t root)
{
    return root >= Reg_First_Root && root <= Reg_Last_Root;
}

bool Reg_Key_Valid(const QString& key)
{
    const QString trimmed = Trim_Blanks(key);
    return !trimmed.isEmpty() && trimmed.size() < 257;
}

void Reg_Clear_Error(Registry_State& state)
{
    state = Registry_State();
}

QString Reg_Error_Message(std::uint32_t code)
{
    const std::uint32_t index = code - First_Error;
    return code >= First_Error && index < std::size(Error_Texts) ? QString::fromUtf16(Error_Texts[index])
                                                                 : u"Undefined Error."_s;
}
