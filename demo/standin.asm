; The stand-in emulator of the demo drive: a DOS program that shows what an emulator would have
; been started with. It writes its command line into CMDLINE.TXT in the current folder, draws a
; screen, and ends on a key, after four seconds, or after one frame if QUICK.TXT lies there. It takes
; a long line as programs built with DJGPP do, and says so by the mark of their loader.
;
; Assemble with exactly one of -DMAME -DCALLUS -DRAINE -DSYSTEM16 -DM72:
;   nasm -f bin -DMAME -o Mame.exe standin.asm
;
; The picture is drawn once and moves by its palette alone, since DOSBox gives a real-mode program
; only a few thousand instructions a millisecond.

cpu 386
bits 16

; Every emulator has its name, the scale of the name's 8 by 8 letters, and four colour pairs:
; sky from top to horizon, sun from top to horizon, grid line and ground, name in light and dark.
%ifdef MAME
  %define NAME 'MAME'
  %define SCALE 7
  %define SKY 12,14,44, 84,72,140
  %define SUN 255,206,140, 204,88,62
  %define GRID 150,160,250, 18,18,54
  %define TITLE 236,238,255, 108,118,214
%elifdef CALLUS
  %define NAME 'CALLUS'
  %define SCALE 6
  %define SKY 22,12,46, 140,62,88
  %define SUN 255,232,170, 226,114,91
  %define GRID 240,136,104, 44,16,40
  %define TITLE 255,240,220, 214,92,66
%elifdef RAINE
  %define NAME 'RAINE'
  %define SCALE 7
  %define SKY 6,18,42, 52,104,142
  %define SUN 240,246,255, 142,154,236
  %define GRID 120,206,226, 10,30,56
  %define TITLE 236,250,255, 84,150,214
%elifdef SYSTEM16
  %define NAME 'SYSTEM16'
  %define SCALE 4
  %define SKY 8,12,56, 58,80,176
  %define SUN 255,214,150, 222,104,84
  %define GRID 214,220,236, 20,26,70
  %define TITLE 255,255,255, 150,160,240
%elifdef M72
  %define NAME 'M72'
  %define SCALE 8
  %define SKY 10,8,22, 84,46,72
  %define SUN 252,164,116, 150,50,52
  %define GRID 226,114,91, 26,12,28
  %define TITLE 255,226,200, 190,70,56
%else
  %error "say which emulator: -DMAME -DCALLUS -DRAINE -DSYSTEM16 or -DM72"
%endif

WIDTH     equ 320
HORIZON   equ 92            ; first row of the ground
GROUND    equ 200 - HORIZON
HAZE      equ 9             ; rows below the horizon in which the grid would be finer than a pixel
RADIUS    equ 46            ; of the sun, whose centre stands on the horizon
TITLE_Y   equ 12
STARS     equ 70
RUN_TICKS equ 73            ; four seconds of the BIOS clock, 18.2 ticks each
BIOS_TICK equ 0x46c

PANEL_X   equ 10
PANEL_Y   equ 120
PANEL_W   equ 300
PANEL_H   equ 62
COLUMNS   equ 36
LINES     equ 4

; The palette, by index.
C_SKY     equ 1             ; 31 shades
C_SUN     equ 32            ; 32 shades
C_TITLE   equ 64            ; 32 shades, rotating
C_STAR    equ 96            ; 16 shades, rotating
C_SHADOW  equ 112
C_PANEL   equ 113
C_EDGE    equ 114
C_TEXT    equ 115
C_DIM     equ 116
C_HAZE    equ 117
C_RAY     equ 118           ; one shade for each band of depth
C_GRID    equ 128           ; four bands of depth, each with 32 shades, rotating

; n colours from (r0 g0 b0) to (r1 g1 b1), in the six bits a channel of the VGA.
%macro ramp 7
  %assign %%i 0
  %rep %7
    db ((%1) * (%7 - 1 - %%i) + (%4) * %%i) / (4 * (%7 - 1))
    db ((%2) * (%7 - 1 - %%i) + (%5) * %%i) / (4 * (%7 - 1))
    db ((%3) * (%7 - 1 - %%i) + (%6) * %%i) / (4 * (%7 - 1))
    %assign %%i %%i + 1
  %endrep
%endmacro

%macro rgb 3
  db (%1) / 4, (%2) / 4, (%3) / 4
%endmacro

; One period of the moving grid at a brightness of %7 sixteenths: a bright line that fades, then
; ground. The table is written twice, so that any rotation is one run of bytes.
%macro grid_period 7
  ramp (%1)*%7/16, (%2)*%7/16, (%3)*%7/16, (%1)*%7/16, (%2)*%7/16, (%3)*%7/16, 3
  ramp (%1)*%7/24, (%2)*%7/24, (%3)*%7/24, %4, %5, %6, 5
  ramp %4, %5, %6, %4, %5, %6, 24
%endmacro
%macro grid_band 7
  grid_period %1, %2, %3, %4, %5, %6, %7
  grid_period %1, %2, %3, %4, %5, %6, %7
%endmacro
%macro grid_haze 6
  rgb ((%1) + 2 * (%4)) / 3, ((%2) + 2 * (%5)) / 3, ((%3) + 2 * (%6)) / 3
%endmacro

%macro grid_rays 6
  rgb (%1)*6/16, (%2)*6/16, (%3)*6/16
  rgb (%1)*8/16, (%2)*8/16, (%3)*8/16
  rgb (%1)*10/16, (%2)*10/16, (%3)*10/16
  rgb (%1)*12/16, (%2)*12/16, (%3)*12/16
%endmacro

%macro title_period 6
  ramp %1, %2, %3, %4, %5, %6, 16
  ramp %4, %5, %6, %1, %2, %3, 16
%endmacro

; A header that loads the image behind it like a .COM file: one segment with the PSP in front.
org 0x100 - 32
header:
        db 'MZ'
        dw (image_end - header) % 512
        dw (image_end - header + 511) / 512
        dw 0                    ; no relocations
        dw 2                    ; paragraphs of this header
        dw 0x1000               ; 64 KiB behind the image, for the stack
        dw 0xffff
        dw 0xfff0, 0xfffe       ; SS:SP, from the image's start back to the PSP
        dw 0
        dw 0x100, 0xfff0        ; IP and CS likewise
        dw 0x1c, 0
        times 32 - ($ - header) db 0

        jmp     start
        db      'go32stub'

start:
        cld
        call    find_line
        call    write_line
        mov     ax, 0x13
        int     0x10
        call    set_palette
        mov     ax, 0xa000
        mov     es, ax
        call    draw_sky
        call    draw_stars
        call    draw_sun
        call    draw_ground
        call    draw_title
        call    draw_panel
        call    draw_command_line
        call    animate
        mov     ax, 3
        int     0x10
        mov     ax, 0x4c00
        int     0x21

; --- files --------------------------------------------------------------------------------------

; The command line behind the program's name, with the blank that it begins with: the tail of the
; PSP, or, where its length is 127, what stands in the variable CMDLINE behind the name there.
find_line:
        movzx   cx, byte [0x80]
        mov     [line_size], cx
        mov     si, 0x81
        mov     di, line_text
        cmp     cx, 127
        je      .long
        rep movsb
        ret
.long:  mov     ds, [0x2c]
        xor     si, si
.variable:
        cmp     byte [si], 0
        je      .done               ; no such variable: an empty line
        mov     di, line_name
        mov     cx, line_name_end - line_name
        repe cmpsb
        je      .name
        dec     si                  ; the byte that differs may be the end
.skip:  lodsb
        test    al, al
        jnz     .skip
        jmp     .variable
.name:  lodsb
        test    al, al
        jz      .done
        cmp     al, ' '
        jne     .name
        dec     si
        mov     di, line_text
.copy:  lodsb
        test    al, al
        jz      .done
        stosb
        jmp     .copy
.done:  push    cs
        pop     ds
        sub     di, line_text
        jns     .sized              ; nothing was copied: DI stands in front
        xor     di, di
.sized: mov     [line_size], di
        ret

; The line goes out byte for byte, without its length and without the carriage return behind it.
write_line:
        mov     ah, 0x3c
        xor     cx, cx
        mov     dx, line_file
        int     0x21
        jc      .done
        mov     bx, ax
        mov     cx, [line_size]
        jcxz    .close              ; a write of no bytes would be fine too, but says nothing
        mov     dx, line_text
        mov     ah, 0x40
        int     0x21
.close: mov     ah, 0x3e
        int     0x21
.done:  ret

; Carry clear if QUICK.TXT lies in the current folder.
is_quick:
        mov     ax, 0x4300
        mov     dx, quick_file
        int     0x21
        ret

; --- picture ------------------------------------------------------------------------------------

set_palette:
        mov     dx, 0x3c8
        mov     al, 0
        out     dx, al
        inc     dx
        mov     si, palette
        mov     cx, (palette_end - palette)
        rep outsb
        xor     bp, bp
        call    rotate_palette
        ret

; The parts of the palette that move, BP steps on.
rotate_palette:
        mov     dx, 0x3c8
        mov     al, C_GRID
        out     dx, al
        inc     dx
        mov     ax, bp
        and     ax, 31
        imul    bx, ax, 3
        mov     di, grid_bands
        mov     al, 4
.band:  lea     si, [bx + di]
        mov     cx, 32 * 3
        rep outsb
        add     di, 64 * 3
        dec     al
        jnz     .band

        dec     dx
        mov     al, C_TITLE
        out     dx, al
        inc     dx
        mov     ax, bp
        shr     ax, 1
        and     ax, 31
        imul    si, ax, 3
        add     si, title_shades
        mov     cx, 32 * 3
        rep outsb

        dec     dx
        mov     al, C_STAR
        out     dx, al
        inc     dx
        mov     ax, bp
        shr     ax, 2
        and     ax, 15
        imul    si, ax, 3
        add     si, star_shades
        mov     cx, 16 * 3
        rep outsb
        ret

draw_sky:
        xor     di, di
        xor     bx, bx              ; row
.row:   imul    ax, bx, 31
        mov     cl, HORIZON
        div     cl
        add     al, C_SKY
        mov     cx, WIDTH
        rep stosb
        inc     bx
        cmp     bx, HORIZON
        jb      .row
        ret

draw_stars:
        mov     cx, STARS
.star:  call    random
        xor     dx, dx
        mov     bx, WIDTH
        div     bx
        mov     di, dx
        call    random
        xor     dx, dx
        mov     bx, HORIZON - 14
        div     bx
        imul    dx, dx, WIDTH
        add     di, dx
        call    random
        shr     ax, 4
        and     al, 15
        add     al, C_STAR
        stosb
        loop    .star
        ret

; A small generator of pseudo-random words, the same stars in every run.
random: mov     ax, [seed]
        imul    ax, ax, 25173
        add     ax, 13849
        mov     [seed], ax
        xchg    al, ah
        and     ah, 0x7f
        ret

; The upper half of a disc on the horizon, with slits that grow wider towards the ground.
draw_sun:
        mov     bx, RADIUS          ; half the width of this row
        xor     bp, bp              ; rows above the horizon
.row:   mov     ax, bx
        imul    ax, bx
        mov     dx, bp
        imul    dx, bp
        add     ax, dx
        cmp     ax, RADIUS * RADIUS
        jbe     .fits
        dec     bx
        jns     .row
        ret
.fits:  mov     ax, bp              ; a slit in every seven rows, one row less with each
        mov     cl, 7
        div     cl
        mov     dl, 4
        sub     dl, al
        cmp     ah, dl
        jl      .next
        mov     ax, RADIUS
        sub     ax, bp
        imul    ax, ax, 31
        mov     cl, RADIUS
        div     cl
        add     al, C_SUN
        mov     di, HORIZON - 1
        sub     di, bp
        imul    di, di, WIDTH
        add     di, WIDTH / 2
        sub     di, bx
        lea     cx, [bx + 1]
        add     cx, bx
        rep stosb
.next:  inc     bp
        cmp     bp, RADIUS
        jb      .row
        ret

; Cross lines by the distance that each row shows, so that the palette can move them; then the
; lines that run to the vanishing point.
draw_ground:
        mov     di, HORIZON * WIDTH
        mov     bp, 1               ; rows below the horizon, counted from 1
.row:   mov     al, C_HAZE
        cmp     bp, HAZE
        jb      .fill
        mov     ax, 4096
        xor     dx, dx
        div     bp                  ; the distance
        and     al, 31
        mov     bx, bp
        call    band_of_row
        shl     bl, 5
        add     al, bl
        add     al, C_GRID
.fill:  mov     cx, WIDTH
        rep stosb
        call    draw_rays
        inc     bp
        cmp     bp, GROUND
        jbe     .row
        ret

; BL: the band of depth, 0 to 3, of row BX below the horizon.
band_of_row:
        shr     bx, 4
        cmp     bx, 3
        jbe     .ok
        mov     bx, 3
.ok:    ret

; The row that has just been filled, which ends in front of DI, is BP below the horizon.
draw_rays:
        cmp     bp, HAZE / 2
        jb      .done
        mov     bx, bp
        call    band_of_row
        lea     ax, [bx + C_RAY]
        mov     cx, -20
.ray:   mov     si, cx
        imul    si, bp
        imul    si, si, 3
        sar     si, 2
        add     si, WIDTH / 2
        cmp     si, WIDTH - 1
        jae     .next               ; also what is left of the screen, as an unsigned number
        mov     bx, di
        sub     bx, WIDTH
        mov     [es:bx + si], al
        cmp     bp, 40
        jb      .next
        mov     [es:bx + si + 1], al
.next:  inc     cx
        cmp     cx, 20
        jle     .ray
.done:  ret

; --- text ---------------------------------------------------------------------------------------

draw_title:
        mov     word [pen_scale], SCALE
        mov     word [pen_x], (WIDTH - (title_end - title) * 8 * SCALE) / 2 + SCALE / 2
        mov     word [pen_y], TITLE_Y + SCALE / 2
        mov     byte [pen_colour], C_SHADOW
        mov     byte [pen_shaded], 0
        call    .letters
        mov     word [pen_x], (WIDTH - (title_end - title) * 8 * SCALE) / 2
        mov     word [pen_y], TITLE_Y
        mov     byte [pen_colour], C_TITLE
        mov     byte [pen_shaded], 1
.letters:
        mov     si, title
        mov     cx, title_end - title
        jmp     draw_text

draw_panel:
        mov     bx, PANEL_Y
        mov     al, C_EDGE
        call    .line
        inc     bx
.row:   call    .inside
        inc     bx
        cmp     bx, PANEL_Y + PANEL_H
        jb      .row
        mov     al, C_EDGE
.line:  imul    di, bx, WIDTH
        add     di, PANEL_X
        mov     cx, PANEL_W
        rep stosb
        ret
.inside:
        mov     al, C_PANEL
        call    .line
        mov     al, C_EDGE
        mov     [es:di - 1], al
        mov     [es:di - PANEL_W], al
        ret

draw_command_line:
        mov     word [pen_scale], 1
        mov     byte [pen_shaded], 0
        mov     byte [pen_colour], C_DIM
        mov     word [pen_x], PANEL_X + 6
        mov     word [pen_y], PANEL_Y + 6
        mov     si, heading
        mov     cx, heading_end - heading
        call    draw_text
        mov     ax, 1
        mov     byte [pen_colour], C_SHADOW
        call    draw_press_key
        xor     ax, ax
        mov     byte [pen_colour], C_TEXT
        call    draw_press_key

        mov     si, line_text
        mov     dx, [line_size]     ; bytes left
        mov     word [pen_y], PANEL_Y + 19
        mov     bp, LINES
.line:  call    skip_blanks
        test    dx, dx
        jz      .done
        call    line_length
        mov     word [pen_x], PANEL_X + 6
        push    si
        push    dx
        push    cx
        call    draw_text
        pop     cx
        pop     dx
        pop     si
        add     si, cx
        sub     dx, cx
        add     word [pen_y], 10
        dec     bp
        jnz     .line
.done:  ret

; AX pixels to the right of its place and below it.
draw_press_key:
        mov     [pen_x], ax
        mov     [pen_y], ax
        add     word [pen_x], (WIDTH - (press_key_end - press_key) * 8) / 2
        add     word [pen_y], PANEL_Y + PANEL_H + 6
        mov     si, press_key
        mov     cx, press_key_end - press_key
        jmp     draw_text

skip_blanks:
        test    dx, dx
        jz      .done
        cmp     byte [si], ' '
        jne     .done
        inc     si
        dec     dx
        jmp     skip_blanks
.done:  ret

; CX: how many of the DX bytes at SI go on one line, broken at a blank if there is one.
line_length:
        mov     cx, dx
        cmp     cx, COLUMNS
        jbe     .done
        mov     cx, COLUMNS
.back:  mov     bx, cx
        cmp     byte [si + bx], ' '
        je      .done
        dec     cx
        jnz     .back
        mov     cx, COLUMNS
.done:  ret

; CX letters at SI, from the pen's place on.
draw_text:
        jcxz    .done
        push    cx
        lodsb
        push    si
        call    draw_letter
        pop     si
        mov     ax, [pen_scale]
        shl     ax, 3
        add     [pen_x], ax
        pop     cx
        loop    draw_text
.done:  ret

; The letter AL from the BIOS font of 8 by 8 dots, each dot a square of the pen's scale.
draw_letter:
        push    bp
        push    es
        mov     [letter], al
        mov     ax, 0x1130
        mov     bh, 3
        cmp     byte [letter], 0x80
        jb      .half
        mov     bh, 4
.half:  int     0x10                ; ES:BP
        movzx   si, byte [letter]
        and     si, 0x7f
        shl     si, 3
        add     si, bp
        mov     bx, letter_rows
        mov     cx, 8
.copy:  mov     al, [es:si]
        mov     [bx], al
        inc     si
        inc     bx
        loop    .copy
        pop     es

        imul    di, [pen_y], WIDTH
        add     di, [pen_x]
        xor     bp, bp              ; row of dots
.row:   mov     dx, [pen_scale]     ; rows of pixels that a row of dots has
.thick: mov     ah, [bp + letter_rows]
        mov     al, [pen_colour]
        push    di
.dot:   mov     cx, [pen_scale]
        add     ah, ah
        jc      .set
        add     di, cx
        jmp     .rest
.set:   rep stosb
.rest:  test    ah, ah
        jnz     .dot
        pop     di
        add     di, WIDTH
        cmp     byte [pen_shaded], 0
        je      .same
        inc     byte [pen_colour]
        and     byte [pen_colour], 31
        or      byte [pen_colour], C_TITLE
.same:  dec     dx
        jnz     .thick
        inc     bp
        cmp     bp, 8
        jb      .row
        cmp     byte [pen_shaded], 0
        je      .done
        mov     byte [pen_colour], C_TITLE
.done:  pop     bp
        ret

; --- life ---------------------------------------------------------------------------------------

animate:
        call    ticks
        mov     [began], ax
        xor     bp, bp
.frame: call    wait_for_frame
        call    rotate_palette
        test    bp, bp
        jnz     .more
        call    is_quick
        jnc     .done
.more:  inc     bp
        call    is_over
        jnc     .frame
.done:  ret

; Two pictures of the screen, 1/35 s, or a number of looks if the screen shows none.
wait_for_frame:
        mov     dx, 0x3da
        mov     bx, 2
.next:  mov     cx, 20000
.shown: in      al, dx
        test    al, 8
        loopnz  .shown
        mov     cx, 20000
.blank: in      al, dx
        test    al, 8
        loopz   .blank
        dec     bx
        jnz     .next
        ret

; Carry set if the program is to end.
is_over:
        mov     ah, 1
        int     0x16
        jnz     .key
        call    ticks
        sub     ax, [began]
        cmp     ax, RUN_TICKS
        jae     .yes
        clc
        ret
.key:   xor     ah, ah
        int     0x16
.yes:   stc
        ret

; AX: the low word of the BIOS clock.
ticks:  push    es
        xor     ax, ax
        mov     es, ax
        mov     ax, [es:BIOS_TICK]
        pop     es
        ret

; --- data ---------------------------------------------------------------------------------------

line_file:  db 'CMDLINE.TXT', 0
line_name:  db 'CMDLINE='
line_name_end:
line_size:  dw 0
quick_file: db 'QUICK.TXT', 0
title:      db NAME
title_end:
heading:    db 'started with'
heading_end:
press_key:  db 'press a key'
press_key_end:
seed:       dw 2749

palette:
        rgb     0, 0, 0
        ramp    SKY, 31
        ramp    SUN, 32
        times 32 * 3 db 0           ; the name
        times 16 * 3 db 0           ; the stars
        rgb     8, 8, 24            ; C_SHADOW
        rgb     14, 14, 34          ; C_PANEL
        rgb     150, 160, 240       ; C_EDGE
        rgb     250, 244, 230       ; C_TEXT
        rgb     226, 114, 91        ; C_DIM
        grid_haze GRID              ; C_HAZE
        grid_rays GRID              ; C_RAY
palette_end:

grid_bands:
        grid_band GRID, 7
        grid_band GRID, 10
        grid_band GRID, 13
        grid_band GRID, 16
title_shades:
        title_period TITLE
        title_period TITLE
star_shades:
        ramp    SKY, 5
        ramp    90, 90, 150, 255, 255, 255, 7
        ramp    230, 230, 250, 90, 90, 150, 4
        ramp    SKY, 5
        ramp    90, 90, 150, 255, 255, 255, 7
        ramp    230, 230, 250, 90, 90, 150, 4

began:       dw 0
pen_x:       dw 0
pen_y:       dw 0
pen_scale:   dw 1
pen_colour:  db 0
pen_shaded:  db 0                   ; 1: every row of pixels takes the next colour
letter:      db 0
letter_rows: times 8 db 0
image_end:
line_text:                          ; in the memory behind the image
