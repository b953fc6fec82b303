# Completion for bash. The program itself knows what may stand where: calvix complete.

_calvix()
{
    # bash splits at = and : too, and wants only what follows the last of them.
    local -a before=()
    local word current="" glued="" i
    for ((i = 1; i <= COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if [[ $word == [=:] ]]; then
            current+=$word
            glued=yes
        elif [[ $glued ]]; then
            current+=$word
            glued=""
        else
            ((i > 1)) && before+=("$current")
            current=$word
        fi
    done
    local kept=${current%"${current##*[=:]}"}

    # As the program will see them: without quotation marks and backslashes.
    local quote=""
    [[ $current == [\"\']* ]] && quote=yes
    current=${current//[\"\'\\]/}
    before=("${before[@]//[\"\'\\]/}")

    local program=${COMP_WORDS[0]//[\"\'\\]/}
    program=${program/#\~\//$HOME/}
    local -a arguments=()
    [[ $current ]] && arguments+=("--current=$current")
    local -a lines=()
    local IFS=$'\n'
    while read -r word; do
        lines+=("${word%$'\r'}")
    done < <("$program" complete "${arguments[@]}" -- "${before[@]}" 2>/dev/null)

    COMPREPLY=()
    for word in "${lines[@]:1}"; do
        word=${word%%$'\t'*}
        word=${word#"$kept"}
        [[ $quote ]] || printf -v word %q "$word"
        COMPREPLY+=("$word")
    done
    current=${current#"$kept"}
    case ${lines[0]} in
        any) COMPREPLY+=($(compgen -f -- "$current")) ;;
        scenarios) COMPREPLY+=($(compgen -f -X '!*.json' -- "$current") $(compgen -d -- "$current")) ;;
        folders) COMPREPLY+=($(compgen -d -- "$current")) ;;
    esac
    [[ ${lines[0]} != none ]] && compopt -o filenames 2>/dev/null
    return 0
}

complete -F _calvix calvix calvix.exe
