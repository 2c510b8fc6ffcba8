# bash completion for quillorent

_quillorent() {
    local word=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ ${COMP_WORDS[COMP_CWORD - 1]} == --page ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'backup restore password synchronise tools' -- "$word")
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--help --version --page' -- "$word")
    else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}

complete -F _quillorent quillorent
