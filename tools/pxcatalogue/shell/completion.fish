# Completion of pxcatalogue for fish: the program says what fits.

function __pxcatalogue_complete
    set -l words (commandline -opc)
    set -l typed (commandline -ct)
    set -l path (string replace -r '^--[^=]*=' '' -- $typed)
    set -l before (string replace -r -- '(--[^=]*=)?.*' '$1' $typed)
    for line in ($words[1] --complete $words[2..-1] $typed 2>/dev/null)
        switch $line
            case :files
                string replace -r -- '^' $before (__fish_complete_path $path)
            case :directories
                string replace -r -- '^' $before (__fish_complete_directories $path '')
            case '*'
                echo $line
        end
    end
end

complete -c pxcatalogue -f -a '(__pxcatalogue_complete)'
