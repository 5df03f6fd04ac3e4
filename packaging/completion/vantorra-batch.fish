# fish completion for vantorra-batch. The program itself names its boxes, keys and their values.

function __vantorra_batch_list
    set -l words (commandline -opc)
    $words[1] --complete $argv[1] 2>/dev/null
end

# The presets of the folder that the line names.
function __vantorra_batch_presets
    set -l words (commandline -opc)
    set -l folder
    for at in (seq (count $words))
        if string match -q -- '--app-folder=*' $words[$at]
            set folder (string replace -- '--app-folder=' '' $words[$at])
        else if test "$words[$at]" = --app-folder
            set folder $words[(math $at + 1)]
        end
    end
    set folder (string replace -r -- '^~' $HOME (string unescape -- "$folder"))
    $words[1] --complete presets --app-folder "$folder" 2>/dev/null
end

# "Section/Key=" of each key, and behind the "=" the values that it knows.
function __vantorra_batch_settings
    set -l typed (string unescape -- (commandline -ct))
    if string match -q -- '*=*' $typed
        set -l key (string replace -r -- '^--set=' '' $typed | string split -m 1 =)[1]
        for value in (__vantorra_batch_list values:$key)
            echo "$key=$value"
        end
    else
        for key in (__vantorra_batch_list keys)
            echo "$key="
        end
    end
end

set -l run 'not __fish_seen_subcommand_from settings identify log journal presets'
complete -c vantorra-batch -f
complete -c vantorra-batch -n '__fish_use_subcommand' -a run -d 'process the folder (the default)'
complete -c vantorra-batch -n '__fish_use_subcommand' -a settings -d 'print the options in force'
complete -c vantorra-batch -n '__fish_use_subcommand' -a identify -d 'print what mkvmerge says of each file'
complete -c vantorra-batch -n '__fish_use_subcommand' -a log -d 'print the process log'
complete -c vantorra-batch -n '__fish_use_subcommand' -a journal -d 'print the last result of each video, on whatever machine'
complete -c vantorra-batch -n '__fish_use_subcommand' -a presets -d 'print the names of the presets'
complete -c vantorra-batch -n "$run" -a '(__fish_complete_directories)'
complete -c vantorra-batch -n '__fish_seen_subcommand_from identify' -F
complete -c vantorra-batch -l videos -x -a '(__fish_complete_directories)' -d 'take the videos from this folder'
complete -c vantorra-batch -l target -x -a '(__fish_complete_directories)' -d 'put the Matroska files into this folder'
complete -c vantorra-batch -l app-folder -x -a '(__fish_complete_directories)' -d 'where Vantorra.ini, ffprobe and the logs are'
complete -c vantorra-batch -l preset -x -a '(__vantorra_batch_presets)' -d 'take the options of that preset'
complete -c vantorra-batch -l set -x -a '(__vantorra_batch_settings)' -d 'read a setting as if Vantorra.ini said so'
complete -c vantorra-batch -l tick -x -a '(__vantorra_batch_list boxes)' -d 'tick a check box'
complete -c vantorra-batch -l untick -x -a '(__vantorra_batch_list boxes)' -d 'untick a check box'
complete -c vantorra-batch -n "$run" -l careful -d 'run as a careful batch'
complete -c vantorra-batch -n "$run" -l classic -d 'run as a classic batch'
complete -c vantorra-batch -s n -l dry-run -d 'print each mkvmerge command, run none'
complete -c vantorra-batch -n "$run" -l check -d 'tell what would come of each video and what is wrong with it'
complete -c vantorra-batch -n "$run" -l recursive -d 'take the folders below, too'
complete -c vantorra-batch -n "$run" -l jobs -x -a 'auto 1 2 4 8' -d 'work on so many videos at once'
complete -c vantorra-batch -n "$run" -l resume -d 'leave out what is done already'
complete -c vantorra-batch -n 'not __fish_seen_subcommand_from settings identify log' -l failed -d 'take only what failed last'
complete -c vantorra-batch -n "$run" -l only -x -d 'take only videos of such names'
complete -c vantorra-batch -n "$run" -l leave-out -x -d 'leave videos of such names out'
complete -c vantorra-batch -n "$run" -l shard -x -d 'take only one of several parts'
complete -c vantorra-batch -l json -d 'print one JSON object a line'
complete -c vantorra-batch -s q -l quiet -d 'print faults only'
complete -c vantorra-batch -n '__fish_seen_subcommand_from log' -l full -d 'print all of the log'
complete -c vantorra-batch -n '__fish_seen_subcommand_from identify' -l codec-private -d 'print the codec-private values, too'
complete -c vantorra-batch -s v -l version -d 'print the version'
complete -c vantorra-batch -s h -l help -d 'print a help'
complete -c vantorra-batch -l help-all -d 'print a help, with the options of Qt'
