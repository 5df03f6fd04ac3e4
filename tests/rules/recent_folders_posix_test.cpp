#include "common/test_program.h"
#include "rules/recent_folders.h"
#include "settings/recent_lists.h"

#include <QDir>

TEST(RecentFolders_Read, GoneFoldersComeInEmptyAndTwoColonsKeepOneOut)
{
    Test_Program test;
    QDir().mkpath(test.Path(u"a:b:c"_s));
    QDir().mkpath(test.Path(u"a:b"_s));
    Read_Recent_Sources(test.Prog, QStringList{test.Path(u"gone/"_s), test.Path(u"a:b:c/"_s), test.Path(u"a:b/"_s),
                                               test.Path(u"lost/"_s), u""_s}
                                       .join(u';'));
    EXPECT_EQ(test.Prog.Options.Path_Videos, u""_s);
    EXPECT_EQ(test.Prog.Form.lbl_VideoPathFault.Caption, u""_s);
    EXPECT_EQ(test.Prog.Settings.Source_MRU, (QStringList{test.Path(u"a:b/"_s), u""_s, u""_s}));
}
