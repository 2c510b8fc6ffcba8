# fish completion for quillorent-run

set -l commands backup extract list sync tools profiles
set -l none "not __fish_seen_subcommand_from $commands"
set -l runs "__fish_seen_subcommand_from backup extract list sync"

complete -c quillorent-run -f
complete -c quillorent-run -n $none -a backup -d "Back up the folders of a profile"
complete -c quillorent-run -n $none -a extract -d "Turn archives back into folders"
complete -c quillorent-run -n $none -a list -d "Tell what an archive holds"
complete -c quillorent-run -n $none -a sync -d "Synchronise the files and folders of a profile"
complete -c quillorent-run -n $none -a tools -d "List the external tools"
complete -c quillorent-run -n $none -a profiles -d "List the profiles"
complete -c quillorent-run -n $none -s h -l help -d "Show the help"
complete -c quillorent-run -n $none -s v -l version -d "Show the version"

complete -c quillorent-run -n $runs -a "(quillorent-run profiles 2>/dev/null | string sub -s 3)" -d Profile
complete -c quillorent-run -n $runs -l yes -d "Go on in spite of what is found before the run"
complete -c quillorent-run -n $runs -l json -d "Print the run's record at its end"
complete -c quillorent-run -n $runs -l progress -d "Show progress even where no terminal is"
complete -c quillorent-run -n "__fish_seen_subcommand_from backup extract list" -l password-file -rF -d "Take the password from the first line of a file"
complete -c quillorent-run -n "__fish_seen_subcommand_from extract list" -l to -xa "(__fish_complete_directories)" -d "Extract into this folder"
complete -c quillorent-run -n "__fish_seen_subcommand_from extract" -l only -x -d "Bring back this file or folder alone"
complete -c quillorent-run -n "__fish_seen_subcommand_from extract list" -l method -xa "aes bf 3d smime auto" -d "Decrypt by this method"
complete -c quillorent-run -n "__fish_seen_subcommand_from extract list; and contains -- -- (commandline -opc)" -F
