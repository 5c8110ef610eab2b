# Writes a source TO that defines the bytes of the file FROM as zarvo::NAME, and their number as
# zarvo::NAMESize.
file(READ ${FROM} bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," numbers "${bytes}")
file(WRITE ${TO} "#include <cstddef>

namespace zarvo {
extern const unsigned char ${NAME}[];
extern const std::size_t ${NAME}Size;
const unsigned char ${NAME}[] = {${numbers}};
const std::size_t ${NAME}Size = sizeof ${NAME};
}  // namespace zarvo
")
