; Starts a DOS program with a command line that is longer than the 126 characters which DOS hands
; on: as COMMAND.COM of DOS 7 does it, for programs that know. The length of the tail says 127, and
; the whole line, program first, is the variable CMDLINE of the program's environment. Ends with the
; program's error level, or 255 if it couldn't be started.
;
; Zarvo writes the line behind these bytes: the program's path, a zero, the tail with the blank that
; it begins with, a zero.

cpu 186
bits 16
org 0x100

SET_BLOCK  equ 0x4A00
EXECUTE    equ 0x4B00
EXIT_CODE  equ 0x4D00
END_WITH   equ 0x4C
STACK      equ 512
NAME_SIZE  equ 8
TAIL_SIZE  equ 126

        cld
        mov     di, line
        call    behind_zero
        mov     [tail_at], di
        call    behind_zero

        ; Behind the line the stack, behind that the new environment, in a segment of its own.
        add     di, STACK + 15
        and     di, 0xFFF0
        mov     sp, di
        shr     di, 4
        mov     ax, cs
        add     ax, di
        mov     [environment], ax
        mov     es, ax
        xor     di, di

        ; The variables that there are, but for an older CMDLINE.
        mov     ds, [0x2C]
        xor     si, si
.variable:
        cmp     byte [si], 0
        je      .own
        pusha
        push    es
        push    cs
        pop     es
        mov     di, name
        mov     cx, NAME_SIZE
        repe    cmpsb
        pop     es
        popa
        je      .skip
        call    copy
        inc     di
        jmp     .variable
.skip:  lodsb
        test    al, al
        jnz     .skip
        jmp     .variable

.own:   push    cs
        pop     ds
        mov     si, name
        call    copy
        mov     si, line
        call    copy
        mov     si, [tail_at]
        call    copy
        xor     ax, ax
        stosw                   ; the end of the value, and of all

        ; The memory behind is the program's.
        mov     bx, di
        add     bx, 15
        shr     bx, 4
        add     bx, [environment]
        mov     ax, cs
        sub     bx, ax
        mov     es, ax
        mov     ax, SET_BLOCK
        int     0x21

        mov     si, [tail_at]
        mov     di, tail + 1
        mov     cx, TAIL_SIZE
        rep movsb
        mov     [block + 4], cs
        mov     [block + 8], cs
        mov     [block + 12], cs
        mov     dx, line
        mov     bx, environment ; the block begins with it
        mov     [stack_at], sp
        mov     ax, EXECUTE
        int     0x21
        mov     bx, cs
        mov     ss, bx
        mov     sp, [cs:stack_at]
        mov     al, 255
        jc      .end
        mov     ax, EXIT_CODE
        int     0x21
.end:   mov     ah, END_WITH
        int     0x21

; DI: behind the next zero from DI on.
behind_zero:
        xor     al, al
        mov     cx, 0xFFFF
        repne   scasb
        ret

; Copies a text without its zero. SI: behind that, DI: behind the text.
copy:   lodsb
        test    al, al
        jz      .done
        stosb
        jmp     copy
.done:  mov     byte [es:di], 0
        ret

name:   db      'CMDLINE=', 0
tail:   db      127
        times   TAIL_SIZE db 0
        db      13
tail_at:  dw    0
stack_at: dw    0
environment:
block:  dw      0               ; segment of the environment
        dw      tail, 0         ; each with the segment that it lies in
        dw      0x5C, 0
        dw      0x6C, 0
line:
