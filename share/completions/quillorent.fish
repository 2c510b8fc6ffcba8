# fish completion for quillorent

complete -c quillorent -s h -l help -d "Show the help"
complete -c quillorent -s v -l version -d "Show the version"
complete -c quillorent -l page -xa "backup restore password synchronise tools" -d "Open this page"
