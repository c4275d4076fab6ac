-- Accounting vouchers that the ledgers led to: one row per voucher.
create table gl_AccVouch (
    -- outside link: cPZID and cDifPZID of the ledgers
    cOutNo_ID   nvarchar(30) not null,
    -- voucher word and number
    cSign       nvarchar(4)  null,
    iNo_ID      int          null,
    -- outside sign, and the module that made the voucher: CA or IA
    cOutSign    nvarchar(80) null,
    cOutSysName nvarchar(10) null,
    -- state: NULL and 2 are shown
    iFlag       tinyint      null,
    primary key (cOutNo_ID)
)
