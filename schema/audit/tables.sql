-- One audited action of a user. It lies apart from the billing tables, so that it survives a rollback there. saveToken
-- names the save that it belongs to; savedAt and login are the server's own word.
create table AuditTrail (
    SNo int identity(1,1) not null primary key,
    userName nvarchar(50),
    userAction nvarchar(1000),
    ActionDate date,
    ActionTime varchar(20),
    TranCode varchar(50),
    Remarks nvarchar(1000),
    Src nvarchar(100),
    saveToken varchar(36),
    savedAt datetime not null default sysdatetime(),
    login nvarchar(128) default suser_sname()
)
go
