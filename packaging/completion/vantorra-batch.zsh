#compdef vantorra-batch
# zsh completion for vantorra-batch

_vantorra_batch_boxes() {
    # The program knows its boxes.
    local -a boxes=(${(f)"$(_call_program boxes ${(q)words[1]} --list-boxes 2>/dev/null)"})
    compadd -a boxes
}

_vantorra_batch_commands() {
    local -a commands=(
        'run:process the folder (the default)'
        'settings:print the options in force'
        'identify:print what mkvmerge says of each file'
        'log:print the process log'
    )
    _describe command commands
}

_arguments \
    '--videos[take the videos from this folder]:folder:_files -/' \
    '--target[put the Matroska files into this folder]:folder:_files -/' \
    '--app-folder[where Vantorra.ini, ffprobe and the logs are]:folder:_files -/' \
    '*--set[read a setting as if Vantorra.ini said so]:Section/Key=Value:' \
    '*--tick[tick a check box]:check box:_vantorra_batch_boxes' \
    '*--untick[untick a check box]:check box:_vantorra_batch_boxes' \
    '--dry-run[print each mkvmerge command, run none]' \
    '--json[print one JSON object a line]' \
    '--quiet[print faults only]' \
    '--full[log: print all of it]' \
    '--codec-private[identify: print the codec-private values, too]' \
    '(- *)'{-v,--version}'[print the version]' \
    '(- *)'{-h,--help}'[print a help]' \
    '(- *)--help-all[print a help, with the options of Qt]' \
    '1:command:_vantorra_batch_commands' \
    '*:file:_files'
