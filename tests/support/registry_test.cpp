#include "support/registry.h"

#include "common/test_program.h"

TEST(Registry, AValueIsFoundByItsNameWithoutRegardToCaseAndCutAtItsFirstZero)
{
    const std::vector<Registry_Value> values{
        {.Name = u"Path"_s, .Type = Reg_Text_Type, .Data = u"C:\\x"_s},
        {.Name = u"COUNT\0junk"_s, .Type = 4, .Data = u"7"_s},
        {.Name = {}, .Type = Reg_Text_Type, .Data = u"C:\\gui.exe\0junk"_s},
        {.Name = u"path"_s, .Type = Reg_Text_Type, .Data = u"second"_s},
    };
    QString value = u"former"_s;
    EXPECT_FALSE(Find_Registry_Value(values, u"absent"_s, value));
    EXPECT_EQ(value, u"former"_s);
    // A number is no text.
    const std::pair<QString, QString> claims[] = {
        {u"pATH"_s, u"C:\\x"_s}, {u""_s, u"C:\\gui.exe"_s}, {u"count"_s, u""_s}};
    for (const auto& [name, data] : claims) {
        EXPECT_TRUE(Find_Registry_Value(values, name, value));
        EXPECT_EQ(value, data);
    }
}

TEST(Registry, BadRootsAndBadKeysLeaveTheSameErrorAndAGoodKeyIsNotFoundHere)
{
    const std::tuple<std::uint32_t, QString, std::uint32_t> cases[] = {
        {0x7fffffff, u"SOFTWARE"_s, 0x80040001},    {0x80000007, u"SOFTWARE"_s, 0x80040001},
        {Reg_Local_Machine, u"  "_s, 0x80040001},   {Reg_Local_Machine, QString(257, u'k'), 0x80040001},
        {Reg_Local_Machine, QString(256, u'k'), 0}, {Reg_First_Root, u" k "_s, 0},
    };
    Registry_State state{.Reg_Error = 1, .Reg_Error_Text = u"old"_s, .Reg_Error_Extra = 2};
    for (const auto& [root, key, error] : cases) {
        EXPECT_FALSE(Reg_Key_Exists(state, root, key));
        EXPECT_EQ(state.Reg_Error, error) << root;
        EXPECT_EQ(state.Reg_Error_Text, error == 0 ? QString() : u"Invalid Base Key Value."_s);
        EXPECT_EQ(state.Reg_Error_Extra, 0);
    }
}
