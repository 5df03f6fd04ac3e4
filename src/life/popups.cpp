#include "life/popups.h"

#include "life/menu_commands.h"
#include "rules/attachments_dialog.h"
#include "rules/folder_changes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const std::vector<Popup>& Popups()
{
    static const std::vector<Popup> popups = {
        {{u"chk_CustomAudioFilter"_s, u"pic_CustomAudioFilter"_s},
         u"mnu_PopupCAF"_s,
         u"mnu_PopupCAF1"_s,
         u"Choose Audio Languages to Filter"_s,
         mnu_CustomAudioFilter_Click},
        {{u"chk_CustomSubsFilter"_s, u"pic_CustomSubsFilter"_s},
         u"mnu_PopupCSF"_s,
         u"mnu_PopupCSF1"_s,
         u"Choose Subtitle Languages to Filter"_s,
         mnu_CustomSubtitleFilter_Click},
        {{u"chk_VideoFrameRate"_s, u"pic_VideoFrameRate"_s},
         u"mnu_PopupSFR"_s,
         u"mnu_PopupSFR1"_s,
         u"Set Video Frame Rate"_s,
         mnu_VideoFrameRate_Click},
        {{u"chk_VideoFormatOptions"_s, u"pic_VideoFormatOptions"_s},
         u"mnu_PopupVFO"_s,
         u"mnu_PopupVFO1"_s,
         u"Video Format Options"_s,
         mnu_VideoFormatOptions_Click},
        {{u"chk_CustomFileTitle"_s, u"pic_CustomFileTitle"_s},
         u"mnu_PopupCFT"_s,
         u"mnu_PopupCFT1"_s,
         u"Custom File Title"_s,
         mnu_CustomFileTitle_Click},
        {{u"chk_CustomVideoTitle"_s, u"pic_CustomVideoTitle"_s},
         u"mnu_PopupCVT"_s,
         u"mnu_PopupCVT1"_s,
         u"Custom Video Title"_s,
         mnu_CustomVideoTitle_Click},
        {{u"pic_AddAttachments"_s}, u"mnu_PopupACA"_s, u"mnu_PopupACA1"_s, u"Add Attachments"_s, mnu_PopupACA1_Click},
        {{u"chk_UseAudioOpts"_s, u"pic_AudioOptionFiles"_s},
         u"mnu_PopupAudioOptions"_s,
         u"mnu_PopupAudioOptions1"_s,
         u"Create/Edit Audio Options Files"_s,
         mnu_AudioOptionsFile_Click},
        {{u"chk_UseSubOpts"_s, u"pic_UseSubOpts"_s},
         u"mnu_PopupSubsOptions"_s,
         u"mnu_PopupSubsOptions1"_s,
         u"Create/Edit Subtitle Options Files"_s,
         mnu_SubtitleOptionsFile_Click},
        {{u"ulbl_VideosPath"_s, u"pic_VideosPath"_s, u"lbl_VideoPathFault"_s},
         u"mnu_PopupVideoBrowse"_s,
         u"mnu_PopupVideoBrowse1"_s,
         u"Browse for Video Folder"_s,
         mnu_PopupVideoBrowse1_Click},
        {{u"ulbl_AudioPath"_s, u"pic_AudioPath"_s, u"lbl_AudioPathFault"_s},
         u"mnu_PopupAudioBrowse"_s,
         u"mnu_PopupAudioBrowse1"_s,
         u"Browse for Audio Folder"_s,
         mnu_PopupAudioBrowse1_Click},
        {{u"ulbl_SubsPath"_s, u"pic_SubsPath"_s, u"lbl_SubsPathFault"_s},
         u"mnu_PopupSubsBrowse"_s,
         u"mnu_PopupSubsBrowse1"_s,
         u"Browse for Subtitle Folder"_s,
         mnu_PopupSubsBrowse1_Click},
        {{u"ulbl_ChaptersPath"_s, u"pic_ChaptersPath"_s, u"lbl_ChapsPathFault"_s},
         u"mnu_PopupChapsBrowse"_s,
         u"mnu_PopupChapsBrowse1"_s,
         u"Browse for Chapters Folder"_s,
         mnu_PopupChapsBrowse1_Click},
        {{u"ulbl_TargetPath"_s, u"pic_TargetPath"_s, u"lbl_TargetPathFault"_s},
         u"mnu_PopupTargetBrowse"_s,
         u"mnu_PopupTargetBrowse1"_s,
         u"Browse for Target Folder"_s,
         mnu_PopupTargetBrowse1_Click},
        {{u"pic_AttachmentsPath"_s},
         u"mnu_PopupAttachBrowse"_s,
         u"mnu_PopupAttachBrowse1"_s,
         u"Browse for Attachment Folder"_s,
         mnu_PopupAttachBrowse1_Click},
    };
    return popups;
}

const Popup* Find_Popup(const QString& control)
{
    const auto popup = std::ranges::find_if(Popups(), [&](const Popup& row) { return row.Controls.contains(control); });
    return popup == Popups().end() ? nullptr : &*popup;
}
