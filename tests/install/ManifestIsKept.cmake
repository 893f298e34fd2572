# The tests install from the build directory. What was installed from it before stays known to "uninstall": DO=keep stands
# before these tests, DO=restore behind them.

set(manifest ${BUILD_DIRECTORY}/install_manifest.txt)
if(DO STREQUAL "keep" AND EXISTS ${manifest} AND NOT EXISTS ${manifest}.kept)
    file(RENAME ${manifest} ${manifest}.kept)
elseif(DO STREQUAL "restore")
    file(REMOVE ${manifest})
    if(EXISTS ${manifest}.kept)
        file(RENAME ${manifest}.kept ${manifest})
    endif()
endif()
