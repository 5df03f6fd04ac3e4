#include "support/system_identification.h"

#include "common/test_program.h"

#include <QSysInfo>
#include <cerrno>

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
