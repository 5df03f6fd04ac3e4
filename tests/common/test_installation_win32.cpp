#include "common/test_installation.h"

#include "common/registered_program_win32.h"

#include <vector>

/// The folders that programs are found in, and the roots of a registry of the test's own, which stand in place of the
/// machine's and the person's.
struct Test_Installation::Former
{
    QByteArray Path = qgetenv("PATH");
    std::wstring Place = L"Software\\Vantorra_Test_" + std::to_wstring(GetCurrentProcessId());
    std::vector<std::pair<HKEY, HKEY>> Overrides;
};

Test_Installation::Test_Installation() : former_(std::make_unique<Former>())
{
    for (const auto& [root, name] :
         {std::pair(HKEY_LOCAL_MACHINE, L"\\machine"), std::pair(HKEY_CURRENT_USER, L"\\person")}) {
        HKEY key = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, (former_->Place + name).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                        &key, nullptr);
        former_->Overrides.emplace_back(root, key);
    }
    for (const auto& [root, key] : former_->Overrides)
        RegOverridePredefKey(root, key);
    qputenv("PATH", "C:\\nowhere");
}

Test_Installation::~Test_Installation()
{
    for (const auto& [root, key] : former_->Overrides) {
        RegOverridePredefKey(root, nullptr);
        RegCloseKey(key);
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, former_->Place.c_str());
    qputenv("PATH", former_->Path);
}

void Test_Installation::Install(const QString& graphical_program) const
{
    Register_MKVToolNix(HKEY_LOCAL_MACHINE, graphical_program);
}
