# CORVANE_COMMIT: the commit that --version names. An archive made by git carries it in Commit.txt; a checkout asks git, and
# is configured again after each commit; anywhere else it is "unknown".
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/Commit.txt CORVANE_COMMIT LIMIT_COUNT 1)
if(NOT CORVANE_COMMIT MATCHES "^[0-9a-f]+$")
  set(CORVANE_COMMIT "")
  find_program(GIT_PROGRAM git)
  if(GIT_PROGRAM AND EXISTS ${PROJECT_SOURCE_DIR}/.git) # and not a repository around an unpacked archive
    execute_process(COMMAND ${GIT_PROGRAM} rev-parse HEAD --git-path logs/HEAD WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                    OUTPUT_VARIABLE commit_and_log RESULT_VARIABLE git_status ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(git_status EQUAL 0)
      string(REGEX REPLACE "\n.*" "" CORVANE_COMMIT "${commit_and_log}")
      string(REGEX REPLACE "^[^\n]*\n" "" log "${commit_and_log}")
      get_filename_component(log ${log} ABSOLUTE BASE_DIR ${PROJECT_SOURCE_DIR})
      if(EXISTS ${log})
        set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${log})
      endif()
    endif()
  endif()
endif()
if(CORVANE_COMMIT)
  string(SUBSTRING ${CORVANE_COMMIT} 0 12 CORVANE_COMMIT)
else()
  set(CORVANE_COMMIT unknown)
endif()
