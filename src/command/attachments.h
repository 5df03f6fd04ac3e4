#pragma once

#include "state/companions.h"
#include "state/job_options.h"
#include "support/command_line.h"

#include <QString>

class Operator;
class clsStringBuilder;

/// What is attached: fonts and pictures.
inline const QString Attachment_Masks = QStringLiteral("*.ttf;*.otf;*.ttc;*.gif;*.psd;*.eps;*.tif;*.jpg;*.jpeg;*.png");

/// Fills `list` with the fonts and pictures of a folder, in the order of the listing, and tells `faults` of each.
///
/// Deliberate: a folder without a separator at its end isn't entered. What is listed then are the files beside it whose
/// names begin with its name, and each FullPath is the folder's text directly followed by the name found, which as a
/// rule names nothing.
void Find_Attachments(const QString& folder, AttachmentList& list, clsStringBuilder& faults, Operator& person);

/// Fills `list` with what is attached to the video of that base name: the contents of the attachments folder, or with
/// titled subfolders those of the video's own. Empty if there is none.
void Find_Attachments_Of_Video(const JobOptions& options, const QString& base_name, AttachmentList& list,
                               clsStringBuilder& faults, Operator& person);

/// The MIME type that goes with a file's extension, empty for any other.
QString Mime_Type_Of(const QString& name);

/// The arguments of each attachment, or the line in `faults` that there is none. Called only if attachments are added.
void Append_Attachment_Arguments(Command_Line& command, const AttachmentList& list, clsStringBuilder& faults);
