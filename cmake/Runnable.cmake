# dravikon_runnable(RESULT TARGET): sets RESULT to the path that starts the executable TARGET. In a
# cross build that is a script that runs it in the emulator.
function(dravikon_runnable result target)
    set(path "$<TARGET_FILE:${target}>")
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(script ${CMAKE_BINARY_DIR}/runnable/${target})
        get_property(hasScript TARGET ${target} PROPERTY DRAVIKON_HAS_SCRIPT)
        if(NOT hasScript)
            list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
            file(GENERATE OUTPUT ${script}
                CONTENT "#!/bin/sh\nexec ${emulator} -0 \"$0\" ${path} \"$@\"\n"
                FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
            set_property(TARGET ${target} PROPERTY DRAVIKON_HAS_SCRIPT ON)
        endif()
        set(path ${script})
    endif()
    set(${result} ${path} PARENT_SCOPE)
endfunction()
