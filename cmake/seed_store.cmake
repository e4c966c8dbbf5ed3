# Gives a new game folder the stock of the vehicle store, STOCK; a store that is there, STORE, stays as it is.
if(NOT EXISTS "${STORE}")
    configure_file("${STOCK}" "${STORE}" COPYONLY)
endif()
