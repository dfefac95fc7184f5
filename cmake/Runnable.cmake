# dravikon_runnable(RESULT TARGET): sets RESULT to the path by which programs start the executable
# TARGET. In a build for a board that is a script that starts it under the emulator.
function(dravikon_runnable result target)
    set(path "$<TARGET_FILE:${target}>")
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(script ${CMAKE_BINARY_DIR}/runnable/${target})
        get_property(known GLOBAL PROPERTY dravikon_runnable_${target})
        if(NOT known)
            set_property(GLOBAL PROPERTY dravikon_runnable_${target} TRUE)
            list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
            file(GENERATE OUTPUT ${script}
                CONTENT "#!/bin/sh\nexec ${emulator} -0 \"$0\" ${path} \"$@\"\n"
                FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
        endif()
        set(path ${script})
    endif()
    set(${result} ${path} PARENT_SCOPE)
endfunction()
