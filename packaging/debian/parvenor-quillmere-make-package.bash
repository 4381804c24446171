# bash completion for parvenor-quillmere-make-package                    -*- shell-script -*-
_parvenor_quillmere_make_package() {
    local cur prev words cword
    _init_completion || return
    case $prev in
        --client | --root | --verify) _filedir -d ;;
        --compression) mapfile -t COMPREPLY < <(compgen -W 'checked zstd xz tar lz4 gzip' -- "$cur") ;;
        --build | --major | --minor | --icon-overlay) ;;
        *)
            mapfile -t COMPREPLY < <(compgen -W '--client --build --major --minor --icon-overlay
                --compression --root --verify --help' -- "$cur")
            ;;
    esac
} && complete -F _parvenor_quillmere_make_package parvenor-quillmere-make-package
