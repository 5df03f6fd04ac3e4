#include "support/registry.h"

#include "common/test_program.h"

#include <windows.h>

TEST(Registry, AValueIsFoundInEitherViewAndAKeyMayEndInABackslash)
{
    // 32-bit programs alone see the second of these.
    const QString key = u"SOFTWARE\\Vantorra test "_s + QString::number(::GetCurrentProcessId());
    const auto* const path = reinterpret_cast<const wchar_t*>(key.utf16());
    const std::pair<REGSAM, const wchar_t*> views[] = {{KEY_WOW64_64KEY, L"wide"}, {KEY_WOW64_32KEY, L"narrow"}};
    for (const auto& [view, name] : views) {
        HKEY open = nullptr;
        ASSERT_EQ(
            ::RegCreateKeyExW(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS | view, nullptr, &open, nullptr),
            ERROR_SUCCESS);
        constexpr wchar_t data[] = L"C:\\gui.exe\0behind";
        ::RegSetValueExW(open, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(data), sizeof(data));
        ::RegSetValueExW(open, L"number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(data), sizeof(DWORD));
        ::RegCloseKey(open);
    }
    Registry_State state;
    QString value;
    for (const QString& name : {u"WIDE"_s, u"narrow"_s}) {
        EXPECT_TRUE(Reg_Read_Value(state, key + u'\\', name, value)) << name.toStdString();
        EXPECT_EQ(value, u"C:\\gui.exe"_s);
    }
    EXPECT_TRUE(Reg_Read_Value(state, key, u"number"_s, value));
    EXPECT_EQ(value, QString());
    EXPECT_FALSE(Reg_Read_Value(state, key, u"absent"_s, value));
    for (const auto& [view, name] : views)
        ::RegDeleteKeyExW(HKEY_LOCAL_MACHINE, path, view, 0);
    EXPECT_FALSE(Reg_Key_Exists(state, Reg_Local_Machine, key));
}
