# bash completion of brantexport, savemachine and mkmachine. Options, the values of an option and brantexport's sections
# come from the help text of the program itself, so they are never out of date.
_brant() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} help words
    # bash splits --model=tr300 into three words: --model, = and tr300.
    if [[ $current == "=" ]]; then
        current=
    elif [[ $previous == "=" ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    help=$("$1" --help 2>&1)

    COMPREPLY=()
    if [[ $previous == --* && $help =~ $previous\ ([a-z0-9]+(\|[a-z0-9]+)+) ]]; then
        words=${BASH_REMATCH[1]//|/ } # as in [--model tr500k2|tr300|bx20]
    elif [[ $previous == --* && $help =~ $previous\ [A-Z] ]]; then
        return # a number or a time
    elif [[ $current == -* ]]; then
        words=$(grep -oE -e '--[a-z]+' <<<"$help")
    elif [[ $help =~ $'\n'[Ss]ections:([a-z_ ]*($'\n'\ +[a-z_ ]+)*) ]]; then
        words=${BASH_REMATCH[1]}
    else
        compopt -o filenames 2>/dev/null # adds the slash after a directory
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
    fi
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current" | sort -u)
}
complete -F _brant brantexport savemachine mkmachine
