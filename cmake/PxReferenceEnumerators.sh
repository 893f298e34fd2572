# Fails if an enumerator has no comment, of which doxygen says nothing: its name is then no link.
missing=$(grep -rohE '(^|^, |\{ )(<br />|&#160;| )*<b>\w+</b>($| = )' "$1" --include='*.html' |
    sed -E 's|.*<b>(\w+).*|\1|' | sort -u)
if [ -n "$missing" ]; then
    echo "error: these enumerators have no comment:" $missing >&2
    exit 1
fi
