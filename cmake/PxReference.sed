# What stands outside classes belongs to the page of its file.
1s|.*|/** @file */|
# What every value has is left out: copying, destroying, "not equal"; without a comment also "equal", hash and log.
s/^ +(Px\w+)\(const \1(<\w+>)? &\w*\)( = default)?;$//
s/^ +Px\w+(<\w+>)? &operator=\(const Px\w+(<\w+>)? &\w*\)( = \w+)?;$//
s/^ +(virtual )?~Px\w+\(\)( override)?(;| = default;| \{.*\})$//
s/^ +(virtual )?bool operator!=\(.*\}$//
/^ +(virtual )?bool operator==\(|^PX\w+_EXPORT (uint qHash|QDebug operator<<)\(/ {
    x
    /\*\/$/ ! {
        x
        /[^;}]$/ N
        s/[^\n]//g
        b
    }
    x
}
h
