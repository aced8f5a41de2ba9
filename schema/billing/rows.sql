-- Rows that every hospital begins with: the counters of receipts, before their first number.

insert into IDgen (DestName, ID) values ('Receipt', 0)
go
insert into IDgen (DestName, ID) values ('RECEIPT2', 0)
go
