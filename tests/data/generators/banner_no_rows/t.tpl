N=%QLNumOfAds%;
%FOREACH%[%num%:%ImageUrl%>%URL%%IMAGETEXT%]
%ENDFOREACH%end
