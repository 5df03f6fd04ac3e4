#pragma once

#include <QString>

/// mkvmerge's JSON identification of the file at `path`, written out as the lines of its verbose text: container,
/// tracks, attachments, chapters and tags, each with its properties as `key:value` in brackets, blanks in them as "\s"
/// and colons as "\c". Lines end in CR LF. The JSON begins with the first line that begins with "{"; lines ahead of it,
/// which another program printed, become warnings, and a JSON that is cut short an error. A text without such a line
/// comes back as it is: an mkvmerge that doesn't know the format says so in words.
QString Verbose_Text_Of_Json(const QString& json, const QString& path);
