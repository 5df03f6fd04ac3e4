#include "support/system_identification.h"

#include "common/test_program.h"

#include <QSysInfo>
#include <cerrno>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(System_Identification, VersionsHaveTheNamesOfTheirTable)
{
    struct Case
    {
        Os_Version_Info Info;
        const char16_t* Name;
    };

    const Case cases[] = {
        {{.Major = 3, .Minor = 51}, u"Windows NT 3.5 Workstation"},
        {{.Major = 4, .Minor = 7, .Product_Type = 3}, u"Windows NT 4.0 Server"},
        {{.Major = 5, .Minor = 1}, u"Windows XP Professional"},
        {{.Major = 5, .Minor = 1, .Suite_Mask = 0x300, .Product_Type = 3}, u"Windows XP Home Edition"},
        {{.Major = 5, .Minor = 2, .Product_Type = 2}, u"Windows Server 2003"},
        {{.Major = 6, .Minor = 3, .Suite_Mask = 0x200}, u"Windows 8.1"},
        {{.Major = 6, .Minor = 4}, u"Unrecognized Version"},
        {{.Major = 10, .Minor = 0, .Product_Type = 3}, u"Windows Server 2016"},
        {{.Major = 11, .Minor = 5, .Product_Type = 3}, u"Windows 11"},
        {{.Major = 12}, u"Unrecognized Version"},
        {{.Major = 2}, u"Unrecognized Version"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(Get_OS_Name(one.Info), QString::fromUtf16(one.Name)) << one.Info.Major << '.' << one.Info.Minor;
}

TEST(System_Identification, TheVersionLineHasThreeFieldsAndTwoBlanksWithoutAServicePack)
{
    const Os_Version_Info info{.Major = 6, .Minor = 1, .Build = 7601, .Service_Pack_Major = 1, .Service_Pack_Minor = 2};
    EXPECT_EQ(OS_Version_Line(Get_OS_Name(info), Service_Pack(info), Version_Numbers(info)),
              u"Windows 7 SP1.2 (v6.1.7601)"_s);
    EXPECT_EQ(Service_Pack({.Service_Pack_Major = 3}), u"SP3"_s);
    EXPECT_EQ(Service_Pack({.Service_Pack_Minor = 3}), QString());
    EXPECT_EQ(Get_OS_Version_Text(), QSysInfo::prettyProductName() + u"  (v"_s + QSysInfo::kernelVersion() + u')');
}

TEST(System_Identification, ErrorNumbersBecomeTheSystemsWordsOrATextThatSaysWhyNot)
{
    EXPECT_EQ(Format_System_Error(ENOENT), u"No such file or directory"_s);
    EXPECT_EQ(Format_System_Error(99'999),
              u"An error occurred with the FormatMessage API function call.\r\nError: 22 Hex(16)."_s);
    EXPECT_EQ(Missing_Words_Text(1, {.Last_Error = 317}),
              u"An error occurred with the FormatMessage API function call.\r\nError: 317 Hex(13D)."_s);
    EXPECT_EQ(Format_System_Error(-5), u"An internal system error occurred with the\r\nFormatMessage API function: -5. "
                                       "No futher information\r\nis available."_s);
}
