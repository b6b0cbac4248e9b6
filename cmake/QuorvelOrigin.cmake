# Where the hosted service is. This is the one place that says so; from here the origin reaches the program, its status
# card, the description for software catalogues and the demonstration network.
#
#   cmake --preset release -DQUORVEL_ORIGIN=https://desk.vendor.example
#
# The default belongs to the stand-in service: "example" is a reserved domain, which nobody else can own.
set(QUORVEL_ORIGIN "https://app.quorvel.example" CACHE STRING "Secure web origin of the hosted service: https://HOST")

set(host_label "[a-z0-9]([a-z0-9-]*[a-z0-9])?")
if(NOT QUORVEL_ORIGIN MATCHES "^https://${host_label}(\\.${host_label})+$")
  message(FATAL_ERROR "QUORVEL_ORIGIN is \"${QUORVEL_ORIGIN}\". It has to be https:// and a host's full name in small "
                      "letters, without a port, a path or a slash at its end: https://app.quorvel.example")
endif()

# Tells the sources of a target, and of those that use it, what the origin is.
function(quorvel_knows_origin target)
  target_compile_definitions(${target} PUBLIC QUORVEL_ORIGIN="${QUORVEL_ORIGIN}")
endfunction()
