#include "end_to_end/track_claim.h"

#include "support/paths.h"

TEST_P(Track_Claims, Hold)
{
    const Track_Claim& claim = GetParam();
    Library_Run run;
    run.Add(claim.Video, u"Movie."_s + Get_Extension(claim.Video));
    claim.Prepare(run);
    EXPECT_TRUE(run.Run());
    EXPECT_EQ(run.Tracks(), claim.Tracks) << run.Log().toStdString();
    claim.Check(run);
}
