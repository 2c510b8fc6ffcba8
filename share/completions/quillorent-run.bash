# bash completion for quillorent-run

_quillorent_run_profiles() {
    quillorent-run profiles 2>/dev/null | cut -c 3-
}

_quillorent_run() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local i command='' given=0
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
            --) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
            --password-file | --to | --only | --method) ((++i)) ;;
            -*) ;;
            *) if [[ -z $command ]]; then command=${COMP_WORDS[i]}; else given=1; fi ;;
        esac
    done
    case $previous in
        --password-file) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
        --only) return ;;
        --to) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
        --method) mapfile -t COMPREPLY < <(compgen -W 'aes bf 3d smime auto' -- "$word"); return ;;
    esac
    if [[ -z $command && $word != -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'backup extract list sync tools profiles' -- "$word")
    elif [[ $word == -* ]]; then
        local options='--help --version'
        case $command in
            backup) options='--password-file --yes --json --progress' ;;
            extract) options='--to --only --method --password-file --yes --json --progress --' ;;
            list) options='--to --method --password-file --yes --json --progress --' ;;
            sync) options='--yes --json --progress' ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    elif ((!given)) && [[ $command == @(backup|extract|list|sync) ]]; then
        local profile
        while IFS= read -r profile; do
            # A name may have spaces, and whatever else a shell would take apart.
            profile=$(printf %q "$profile")
            [[ $profile == "$word"* ]] && COMPREPLY+=("$profile")
        done < <(_quillorent_run_profiles)
    fi
}

complete -F _quillorent_run quillorent-run
