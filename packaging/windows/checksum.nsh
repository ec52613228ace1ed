; SPDX-License-Identifier: MIT
; Computes the SHA-256 of a file with the functions of Windows.

!define PROV_RSA_AES 24
!define CRYPT_VERIFYCONTEXT 0xF0000000
!define CALG_SHA_256 0x800C
!define HP_HASHVAL 2
!define HASH_BYTES 32
!define CHUNK_BYTES 65536

!macro ChecksumFunction un
  ; Leaves the checksum of the file $R0 in $R1 as lowercase hexadecimal digits. Empty if the file cannot
  ; be read.
  Function ${un}FileChecksum
    StrCpy $R1 ""
    System::Call 'kernel32::CreateFileW(w R0, i 0x80000000, i 1, p 0, i 3, i 0, p 0) p .r1'
    ${If} $1 = -1
      Return
    ${EndIf}
    System::Call 'advapi32::CryptAcquireContextW(*p .r2, p 0, p 0, i ${PROV_RSA_AES}, \
        i ${CRYPT_VERIFYCONTEXT})'
    System::Call 'advapi32::CryptCreateHash(p r2, i ${CALG_SHA_256}, p 0, i 0, *p .r3)'
    System::Alloc ${CHUNK_BYTES}
    Pop $4
    ${Do}
      StrCpy $6 0
      System::Call 'kernel32::ReadFile(p r1, p r4, i ${CHUNK_BYTES}, *i .r6, p 0) i .r5'
      ${If} $5 = 0
      ${OrIf} $6 = 0
        ${ExitDo}
      ${EndIf}
      System::Call 'advapi32::CryptHashData(p r3, p r4, i r6, i 0)'
    ${Loop}
    ${If} $5 <> 0
      System::Call 'advapi32::CryptGetHashParam(p r3, i ${HP_HASHVAL}, p r4, *i ${HASH_BYTES}, \
          i 0) i .r5'
    ${EndIf}
    ${If} $5 <> 0
      ${For} $5 0 31
        IntOp $6 $4 + $5
        System::Call '*$6(&i1 .r6)'
        IntOp $6 $6 & 0xFF
        IntFmt $6 "%02x" $6
        StrCpy $R1 "$R1$6"
      ${Next}
    ${EndIf}
    System::Free $4
    System::Call 'advapi32::CryptDestroyHash(p r3)'
    System::Call 'advapi32::CryptReleaseContext(p r2, i 0)'
    System::Call 'kernel32::CloseHandle(p r1)'
  FunctionEnd
!macroend

!insertmacro ChecksumFunction ""
!insertmacro ChecksumFunction "un."
