# Read by cpack: a data file has a Japanese name, which it could not put into the package in the plain
# "C" locale of a build machine.
set(ENV{LC_ALL} C.UTF-8)
