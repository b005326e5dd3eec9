// The settings of a Windows user, as the platform's GetSetting and SaveSetting keep them: asked for
// by the system's own functions.

#include "shell/Settings.h"

#include <windows.h>

#include <array>
#include <gtest/gtest.h>

namespace
{

constexpr const wchar_t* kFolder = L"Software\\VB and VBA Program Settings\\Tempora\\Settings";
constexpr const wchar_t* kName = L"Essai_du_registre"; // no setting of the program's

/// Leaves nothing behind.
class TheUsersStore : public testing::Test
{
protected:
    ~TheUsersStore() override { RegDeleteKeyValueW(HKEY_CURRENT_USER, kFolder, kName); }

    [[nodiscard]] static QString stored()
    {
        std::array<wchar_t, 256> text{};
        DWORD size = sizeof(text);
        const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, kFolder, kName, RRF_RT_REG_SZ,
                                            nullptr, text.data(), &size);
        return status == ERROR_SUCCESS ? QString::fromWCharArray(text.data())
                                       : QStringLiteral("(none)");
    }
    const QString key = QString::fromWCharArray(kName);
};

} // namespace

TEST_F(TheUsersStore, isWhereSaveSettingPutsThem)
{
    shell::Settings settings = shell::Settings::perUser();
    settings.save(key, QStringLiteral("Océan, 19"));
    EXPECT_EQ(stored(), QStringLiteral("Océan, 19"));
}

TEST_F(TheUsersStore, isReadAsSaveSettingLeftIt)
{
    const std::wstring text = L"Vrai";
    RegSetKeyValueW(HKEY_CURRENT_USER, kFolder, kName, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    const shell::Settings settings = shell::Settings::perUser();
    EXPECT_EQ(settings.get(key, QStringLiteral("False")), QStringLiteral("Vrai"));
    EXPECT_EQ(settings.again().get(key, QStringLiteral("False")), QStringLiteral("Vrai"));
}
