#compdef pxcatalogue
# Completion of pxcatalogue for zsh: the program says what fits.

local line
local -a candidates
local program=${(Q)words[1]/#\~/$HOME}
for line in "${(@f)$($program --complete "${(@Q)words[2,CURRENT]}" 2>/dev/null)}"; do
    case $line in
        :files)
            compset -P '--*='
            _files
            return ;;
        :directories)
            compset -P '--*='
            compset -P '*:'
            _files -/
            return ;;
        ?*)
            candidates+=("${${line//:/\\:}/$'\t'/:}") ;;
    esac
done
# The program has compared the words without regard to case.
_describe -t words word candidates -M 'm:{[:lower:][:upper:]}={[:upper:][:lower:]}'
