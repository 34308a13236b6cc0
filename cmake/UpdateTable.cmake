# cmake -DTABLE=<file> -DDOCUMENT=<file> -P UpdateTable.cmake
# Replaces what stands between the two marks of the document by the table.
file(READ ${TABLE} table)
file(READ ${DOCUMENT} document)
set(begin "<!-- table begins -->")
set(end "<!-- table ends -->")
string(FIND "${document}" "${begin}" from)
string(FIND "${document}" "${end}" to)
if(from EQUAL -1 OR to LESS from)
    message(FATAL_ERROR "${DOCUMENT} lacks its table marks")
endif()
string(SUBSTRING "${document}" 0 ${from} head)
string(SUBSTRING "${document}" ${to} -1 tail)
file(WRITE ${DOCUMENT} "${head}${begin}\n${table}${tail}")
