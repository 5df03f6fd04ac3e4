#include "support/system_identification.h"

#include "common/test_program.h"

#include <QOperatingSystemVersion>
#include <windows.h>

TEST(System_Identification, TheVersionLineHasThreeFieldsAndTwoBlanksWithoutAServicePack)
{
    const Os_Version_Info info{.Major = 6, .Minor = 1, .Build = 7601, .Service_Pack_Major = 1, .Service_Pack_Minor = 2};
    EXPECT_EQ(OS_Version_Line(Get_OS_Name(info), Service_Pack(info), Version_Numbers(info)),
              u"Windows 7 SP1.2 (v6.1.7601)"_s);
    const QOperatingSystemVersion system = QOperatingSystemVersion::current();
    EXPECT_TRUE(Get_OS_Version_Text().endsWith(
        u" (v%1.%2.%3)"_s.arg(system.majorVersion()).arg(system.minorVersion()).arg(system.microVersion())))
        << Get_OS_Version_Text().toStdString();
    int bitness = 0;
    EXPECT_TRUE(Get_Bitness(bitness));
    EXPECT_EQ(bitness, 64);
}

TEST(System_Identification, ErrorNumbersBecomeTheSystemsWordsOrATextThatSaysWhyNot)
{
    const QString words = Format_System_Error(ERROR_FILE_NOT_FOUND);
    EXPECT_TRUE(words.startsWith(u"File not found"_s) || words.startsWith(u"The system cannot find"_s));
    EXPECT_FALSE(words.endsWith(u'\n'));
    EXPECT_EQ(Format_System_Error(0x20001234), Missing_Words_Text(0x20001234, {.Last_Error = ERROR_MR_MID_NOT_FOUND}));
}
