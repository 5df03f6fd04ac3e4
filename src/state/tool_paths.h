#pragma once

#include <QString>

/// Where the tools are and what they said of themselves.
struct Tool_Paths
{
    QString FFProbe_Path;            ///< App_Folder and "ffprobe"
    QString System_MKVMerge_Path;    ///< the mkvmerge that does the work
    QString Local_MKVMerge_Path;     ///< App_Folder and "mkvmerge", set only if that copy passed its version test
    QString System_MKVMerge_Version; ///< raw output of its " -V"
    QString Local_MKVMerge_Version;
    bool Local_MKVMerge_OK = false;
    bool Local_MKVMerge_Runs = false;
    int MKVMerge_Bits = 0; ///< 64, 32 or 0, from the last version text
    int System_Bits = 64;
    QString System_Folder; ///< the system's own folder; unused where processes are killed without a shell
};
