# SPDX-License-Identifier: MIT
# Completion of moravel for fish.
complete -c moravel -f
complete -c moravel -n __fish_use_subcommand -a next -d 'Change the desktop picture'
complete -c moravel -n __fish_use_subcommand -a previous -d 'Go back to the desktop picture before'
complete -c moravel -n __fish_use_subcommand -a hold -d 'Keep the desktop picture for an hour'
complete -c moravel -n __fish_use_subcommand -a current -d 'Tell what is known of the desktop picture'
complete -c moravel -n __fish_use_subcommand -a set -d 'Make a picture file the desktop'
complete -c moravel -n __fish_use_subcommand -a show -d 'Bring the window to the front'
complete -c moravel -n __fish_use_subcommand -a large -d 'Show a picture large'
complete -c moravel -n __fish_use_subcommand -a browser -d 'Open the browser of the collection'
complete -c moravel -n __fish_use_subcommand -a quit -d 'End the program'
complete -c moravel -n '__fish_seen_subcommand_from set' -F
complete -c moravel -n '__fish_seen_subcommand_from current' -l json -d 'Answer in JSON'
complete -c moravel -n __fish_use_subcommand -l sources -x -a all -d 'Switch these sources on'
complete -c moravel -n __fish_use_subcommand -l hidden -d 'Start without the window'
complete -c moravel -s h -l help -d 'Show a short help'
complete -c moravel -l version -d 'Show the version and the address of the service'
