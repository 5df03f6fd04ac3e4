#compdef vantorra-batch
# zsh completion for vantorra-batch. The program itself names its boxes, keys and their values.

_vantorra_batch_list() {
    local -a names=("${(@f)$(_call_program names ${(q)words[1]} --complete ${(q)1} 2>/dev/null)}")
    compadd "${@:2}" -a names
}

_vantorra_batch_boxes() {
    _vantorra_batch_list boxes
}

_vantorra_batch_presets() {
    local folder=${(Q)opt_args[--app-folder]}
    local -a names=("${(@f)$(_call_program names ${(q)words[1]} --complete presets --app-folder ${(q)folder/#\~/$HOME} 2>/dev/null)}")
    compadd -a names
}

_vantorra_batch_setting() {
    if compset -P 1 '*='; then
        _vantorra_batch_list "values:${${(Q)IPREFIX}%%=*}"
    else
        _vantorra_batch_list keys -S =
    fi
}

_vantorra_batch_commands() {
    local -a commands=(
        'run:process the folder (the default)'
        'settings:print the options in force'
        'identify:print what mkvmerge says of each file'
        'log:print the process log'
        'journal:print the last result of each video, on whatever machine'
        'presets:print the names of the presets'
    )
    _describe command commands
    _files -/
}

_arguments -s \
    '--videos[take the videos from this folder]:folder:_files -/' \
    '--target[put the Matroska files into this folder]:folder:_files -/' \
    '--app-folder[where Vantorra.ini, ffprobe and the logs are]:folder:_files -/' \
    '--preset[take the options of that preset]:preset:_vantorra_batch_presets' \
    '*--set[read a setting as if Vantorra.ini said so]:Section/Key=Value:_vantorra_batch_setting' \
    '*--tick[tick a check box]:check box:_vantorra_batch_boxes' \
    '*--untick[untick a check box]:check box:_vantorra_batch_boxes' \
    '(--classic)--careful[run as a careful batch]' \
    '(--careful --recursive --jobs --resume --failed --only --leave-out --shard)--classic[run as a classic batch]' \
    '(-n --dry-run)'{-n,--dry-run}'[print each mkvmerge command, run none]' \
    '--check[tell what would come of each video and what is wrong with it]' \
    '(--classic)--recursive[take the folders below, too]' \
    '(--classic)--jobs[work on so many videos at once]:number:(auto 1 2 4 8)' \
    '(--classic)--resume[leave out what is done already]' \
    '(--classic)--failed[take only what failed last]' \
    '*--only[take only videos of such names]:pattern:' \
    '*--leave-out[leave videos of such names out]:pattern:' \
    '(--classic)--shard[take only one of several parts]:K/N:' \
    '--json[print one JSON object a line]' \
    '(-q --quiet)'{-q,--quiet}'[print faults only]' \
    '--full[log: print all of it]' \
    '--codec-private[identify: print the codec-private values, too]' \
    '(- *)'{-v,--version}'[print the version]' \
    '(- *)'{-h,--help}'[print a help]' \
    '(- *)--help-all[print a help, with the options of Qt]' \
    '1:command:_vantorra_batch_commands' \
    '*:file:_files'
