# dravikon_runnable(RESULT TARGET): sets RESULT to the path by which programs start the executable
# TARGET. In a build for a board that is a script that starts it under the emulator. Once a target.
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
