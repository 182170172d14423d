# Run by cpack on the packages it has written: says what it cannot say, and drops what it says wrongly.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(dir ${CPACK_TEMPORARY_DIRECTORY}/finish)
    file(REMOVE_RECURSE ${dir})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${dir} COMMAND_ERROR_IS_FATAL ANY)

    # The trigger does what these two would do.
    file(REMOVE ${dir}/DEBIAN/postinst ${dir}/DEBIAN/postrm)

    # Packages of several processors live side by side; what is for all of them serves each.
    file(READ ${dir}/DEBIAN/control control)
    set(multi_arch same)
    if(control MATCHES "Architecture: all\n")
        set(multi_arch foreign)
    endif()
    string(STRIP "${control}" control)
    file(WRITE ${dir}/DEBIAN/control "${control}\nMulti-Arch: ${multi_arch}\n")

    execute_process(COMMAND dpkg-deb --root-owner-group --build ${dir} ${package} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
