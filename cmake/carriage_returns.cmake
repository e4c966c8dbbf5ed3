# Copies SOURCE to TARGET with each line feed made carriage return, line feed.
file(READ "${SOURCE}" text)
string(REPLACE "\n" "\r\n" text "${text}")
file(WRITE "${TARGET}" "${text}")
