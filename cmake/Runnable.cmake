# dravikon_runnable(RESULT TARGET): sets RESULT to the path that starts the executable TARGET. In a
# cross build that is a script that runs it in the emulator. Call it once per target.
function(dravikon_runnable result target)
    set(path "$<TARGET_FILE:${target}>")
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(script ${CMAKE_BINARY_DIR}/runnable/${target})
        list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
        file(GENERATE OUTPUT ${script}
            CONTENT "#!/bin/sh\nexec ${emulator} -0 \"$0\" ${path} \"$@\"\n"
            FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
        set(path ${script})
    endif()
    set(${result} ${path} PARENT_SCOPE)
endfunction()
