# Of the links of a page those stay that lead to another page; the others are for who reads it where it is stored.
s/\[([^]]*)\]\(([a-z-]+\.md)#[^)]*\)/[\1](\2)/g
s/\[([^]]*)\]\((#|\.\.\/|pictures\/|[a-z.-]+\.(xsd|json))[^)]*\)/\1/g
