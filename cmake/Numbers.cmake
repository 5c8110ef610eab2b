# Writes the bytes of the file FROM as numbers for an array of C++ to the file TO.
file(READ ${FROM} bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," numbers "${bytes}")
file(WRITE ${TO} "${numbers}\n")
