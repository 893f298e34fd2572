# Completion of pxcatalogue for bash: the program says what fits.

_pxcatalogue()
{
    # In COMP_WORDS, "=" and ":" are words of their own, and quotes are still there.
    local words=() word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        word=${word//[\\\"\']/}
        if ((${#words[@]})) && [[ $word == [=:]* || ${words[-1]} == *[=:] ]]; then
            words[-1]+=$word
        else
            words+=("$word")
        fi
    done
    # Only what follows the last of them is replaced.
    local path=${words[-1]##*[=:]}
    local typed=${words[-1]%"$path"}
    COMPREPLY=()
    while IFS= read -r word; do
        case $word in
            :files)
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -f -- "$path") ;;
            :directories)
                compopt -o filenames
                mapfile -t COMPREPLY < <(compgen -d -- "$path") ;;
            *)
                word=${word%%$'\t'*}
                word=${word:${#typed}}
                [[ $word == *[!a-zA-Z0-9_,./-]* ]] && printf -v word %q "$word"
                COMPREPLY+=("$word") ;;
        esac
    done < <("${1/#\~/$HOME}" --complete "${words[@]}" 2>/dev/null)
}

complete -F _pxcatalogue pxcatalogue
