#include "inspect/video_names.h"

#include "support/paths.h"

bool Is_Video_File(const QString& path, QString& out)
{
    out = Get_Extension(path);
    if (out.isEmpty() || !Video_Extensions.contains(out))
        return false;
    out = Get_Base_Name(path);
    return true;
}
