# Reads kulgui.h for doxygen. The header is written to be read as it is; here its habits are told in
# doxygen's words:
#
#   the comment at the top             the first page
#   /* ---- Menus ---- * ... */        a group, up to the next one, and what is said of it
#   /** ... */ before some calls       said of each of them, up to a blank line;
#                                      macros as well
#   int nX; /* a field */              said of the field, which is ro or rw
#
# Pictures and programs are lines that are indented; they stay as they are.

# What has a meaning for doxygen and none here.
function plain(line)
{
    gsub(/[\\@#<>&$%"~`|]/, "\\\\&", line)
    gsub(/\[/, "\\[", line)
    return line
}

function slug(title)
{
    title = tolower(title)
    gsub(/[^a-z0-9]+/, "_", title)
    return title
}

# The start of a comment that is no call's.
NR == 1 {
    print "/** @mainpage"
    top = 1
    next
}
/^\/\* ---- / {
    title = $0
    gsub(/^\/\* -+ | -+ \*\/?$/, "", title)
    if (title ~ /-$/)
        sub(/ -+ *\*?$/, "", title)
    if (inGroup)
        print "/** @} */"
    printf "/** @defgroup %s %s\n", slug(title), title
    inGroup = 1
    if ($0 ~ /\*\/$/)
        print " * @{ */"
    else
        opening = 1
    next
}
opening && /\*\/$/ {
    if (inPicture)
        print "@endverbatim"
    inPicture = 0
    print " * @{ */"
    opening = 0
    next
}
top && /\*\/$/ {
    print " */\n/** @file */"
    top = 0
    next
}
# Its table of contents is a picture, up to the first rule.
top && !inRules && /^ \*     / {
    if (!inPicture)
        print " * @verbatim"
    inPicture = 1
    print substr($0, 4)
    next
}
top {
    if (inPicture)
        print "@endverbatim"
    inPicture = 0
    line = plain($0)
    inRules = sub(/^ \* +[0-9]+\./, " * -#", line) || inRules
    print line
    next
}
opening {
    if (!inPicture && /^ \*     /) {
        print " * @verbatim"
        inPicture = 1
    } else if (inPicture && /^ \* [^ ]/) {
        print "@endverbatim"
        inPicture = 0
    }
    print inPicture ? substr($0, 4) : plain($0)
    next
}

# What is said of calls.
/^\/\*\*/ {
    said = ""
    saying = 1
}
saying {
    rest = $0
    sub(/^\/\*\*/, " *", rest)
    end = sub(/ *\*\/$/, "", rest)
    said = said plain(rest) "\n"
    if (end) {
        saying = 0
        first = 1
    }
    next
}
/^$/ {
    said = ""
}
/^#ifdef __cplusplus/ && inGroup {
    print "/** @} */"
    inGroup = 0
}
# Of records and types it is said once.
said != "" && (first || /^KULGUI_API/ || /^#define/) {
    printf "/**\n%s */\n", said
    first = 0
}

# What is said of fields.
/^    .*; *\/\* .* \*\/$/ {
    sub(/\/\* /, "/**< ")
}
{
    print
}
